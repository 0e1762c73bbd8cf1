#include "i18n/lcmgmt/startup/lcdata_parser.hpp"

#include <fl/filesystem/basic_ifstream.hpp>
#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcmgmt/lcdb_event_handler.hpp"

#include <expat.h>

#include <exception>
#include <memory>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

// A small read size keeps memory flat for any file size; the database file is small anyway.
constexpr std::streamsize piece_size = 1024;

struct parse_record {
    EventHandler* handler;
    XML_Parser parser;
    // The first refusal; expat may still deliver an event or two after being stopped, and
    // those must not reach the handler.
    int stopped;
    // An exception from the handler, held until XML_Parse has returned: it must not unwind
    // through expat's C frames.
    std::exception_ptr failure;
};

// Runs one handler call unless the parse was stopped; a refusal or an exception stops it.
template <class Call>
void deliver(void* data, Call call) {
    auto& record = *static_cast<parse_record*>(data);
    if (record.stopped != 0) {
        return;
    }
    int result = 0;
    try {
        result = call(*record.handler);
    } catch (...) {
        record.failure = std::current_exception();
        result = -1;
    }
    if (result != 0) {
        record.stopped = result;
        XML_StopParser(record.parser, XML_FALSE);
    }
}

void XMLCALL on_xml_decl(void* data, XML_Char const* version, XML_Char const* encoding,
                         int standalone) {
    deliver(data, [&](EventHandler& h) { return h.xmlDecl(version, encoding, standalone); });
}

void XMLCALL on_start(void* data, XML_Char const* name, XML_Char const** attributes) {
    deliver(data, [&](EventHandler& h) { return h.startElement(name, attributes); });
}

void XMLCALL on_end(void* data, XML_Char const* name) {
    deliver(data, [&](EventHandler& h) { return h.endElement(name); });
}

void XMLCALL on_character_data(void* data, XML_Char const* text, int length) {
    deliver(data, [&](EventHandler& h) { return h.characterData(text, length); });
}

struct parser_free {
    void operator()(XML_ParserStruct* parser) const { XML_ParserFree(parser); }
};

}  // namespace

void parseXml(EventHandler& handler, std::istream& input, std::string const& path) {
    std::unique_ptr<XML_ParserStruct, parser_free> const parser(
        XML_ParserCreate(handler.parserEncoding()));
    if (!parser) {
        fl::detail::throw_exception(LcRscParserCreationFailure());
    }
    parse_record record{&handler, parser.get(), 0, nullptr};
    XML_SetUserData(parser.get(), &record);
    XML_SetXmlDeclHandler(parser.get(), &on_xml_decl);
    XML_SetElementHandler(parser.get(), &on_start, &on_end);
    XML_SetCharacterDataHandler(parser.get(), &on_character_data);

    char piece[piece_size];
    for (;;) {
        input.read(piece, piece_size);
        if (input.bad()) {
            fl::detail::throw_exception(LcRscFileReadFailure(path));
        }
        bool const last = input.eof();
        XML_Status const status =
            XML_Parse(parser.get(), piece, static_cast<int>(input.gcount()), last ? 1 : 0);
        if (record.failure) {
            std::rethrow_exception(record.failure);
        }
        if (status == XML_STATUS_ERROR) {
            fl::detail::throw_exception(LcRscInvalidXmlDoc(
                static_cast<int>(XML_GetErrorCode(parser.get())),
                XML_GetCurrentColumnNumber(parser.get()), XML_GetCurrentLineNumber(parser.get())));
        }
        if (last) {
            return;
        }
    }
}

void parseLcData(Lcdb& database, std::istream& input, std::string const& path,
                 std::vector<std::string>& warnings) {
    LcdbEventHandler handler(database, warnings);
    parseXml(handler, input, path);
}

void parseLcData(Lcdb& database, std::string const& path, std::vector<std::string>& warnings) {
    fl::filesystem::ifstream input(path, std::ios_base::in | std::ios_base::binary);
    if (!input.is_open()) {
        fl::detail::throw_exception(LcRscOpenFileFailure(path));
    }
    parseLcData(database, input, path, warnings);
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
