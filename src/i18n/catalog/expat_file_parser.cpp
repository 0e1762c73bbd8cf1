#include "i18n/catalog/expat_file_parser.hpp"

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/basic_ifstream.hpp>

#include <expat.h>
#include <boost/numeric/conversion/cast.hpp>

#include <new>
#include <string>

namespace fl {
namespace i18n {
namespace {

using context = ExpatFileParser::callback_context;

// Runs one event on the handler; a refusal or an exception stops the parser, and from then on
// nothing reaches the handler.
template <class Event>
void deliver(void* data, Event event) {
    auto& ctx = *static_cast<context*>(data);
    // The parser holds the handler for as long as expat can call back, so a reference does what
    // a copy of the shared pointer per event would, without two atomic counts per event.
    ExpatEventHandler* const handler = ctx.handler.get();
    if (!handler->parsing_ok()) {
        return;
    }
    try {
        handler->set_parsing_ok(event(*handler));
    } catch (...) {
        ctx.failure = std::current_exception();
        handler->set_parsing_ok(false);
    }
    if (!handler->parsing_ok()) {
        XML_StopParser(ctx.parser, XML_FALSE);
    }
}

void XMLCALL on_start(void* data, XML_Char const* name, XML_Char const** attributes) {
    deliver(data, [&](ExpatEventHandler& h) { return h.start_element(name, attributes); });
}

void XMLCALL on_end(void* data, XML_Char const* name) {
    deliver(data, [&](ExpatEventHandler& h) { return h.end_element(name); });
}

void XMLCALL on_character_data(void* data, XML_Char const* text, int length) {
    auto& ctx = *static_cast<context*>(data);
    bool const at_line_start = ctx.at_line_start;
    ctx.at_line_start = false;
    deliver(data,
            [&](ExpatEventHandler& h) { return h.character_data(text, length, at_line_start); });
}

}  // namespace

ExpatFileParser::ExpatFileParser(fl::filesystem::upath const& file,
                                 boost::shared_ptr<ExpatEventHandler> handler)
    : file_(file),
      parser_(XML_ParserCreate(handler->encoding().c_str())),
      handler_(std::move(handler)),
      context_{parser_, handler_, false, nullptr} {
    if (parser_ == nullptr) {
        throw std::bad_alloc();
    }
    XML_SetElementHandler(parser_, &on_start, &on_end);
    XML_SetCharacterDataHandler(parser_, &on_character_data);
    XML_SetUserData(parser_, &context_);
}

ExpatFileParser::~ExpatFileParser() {
    XML_ParserFree(parser_);
}

bool ExpatFileParser::parse() {
    fl::filesystem::ifstream input(
        fl::filesystem::detail::make_native_access_form(file_.pathname()),
        std::ios_base::in | std::ios_base::binary);
    if (!input.good()) {
        return false;
    }
    return parse(input);
}

bool ExpatFileParser::parse(std::istream& input) {
    bool result = true;
    std::string line;
    while (result && std::getline(input, line)) {
        context_.at_line_start = true;
        int const length = boost::numeric_cast<int>(line.size());
        result = XML_Parse(parser_, line.data(), length, input.eof() ? 1 : 0) != XML_STATUS_ERROR;
        if (context_.failure) {
            std::rethrow_exception(context_.failure);
        }
    }
    return result;
}

}  // namespace i18n
}  // namespace fl
