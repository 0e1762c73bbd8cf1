#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>
#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "filesystem/streams/scratch_directory.hpp"
#include "i18n/lcmgmt/event_handler.hpp"
#include "i18n/lcmgmt/startup/lcdata_parser.hpp"
#include "support/cloned_exception.hpp"
#include "support/expect_thrown.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using fl::i18n::LcRscInvalidXmlDoc;
using fl::i18n::lcmgmt::parseLcData;
using strings = std::vector<std::string>;

// Parses an in-memory document into a fresh database.
struct parsed_document {
    fl::i18n::lcmgmt::Lcdb database;
    std::vector<std::string> warnings;

    void parse(std::string const& text) {
        std::istringstream input(text);
        parseLcData(database, input, "memory.xml", warnings);
    }
};

struct document_case {
    char const* why;
    char const* text;
    bool accepted;
};

TEST(LcdataGrammar, AcceptsAndRefusesDocuments) {
    document_case const cases[] = {
        {"no declaration", "<lcdata/>", true},
        {"declaration without encoding", "<?xml version=\"1.0\"?><lcdata/>", false},
        {"encoding in lower case", "<?xml version=\"1.0\" encoding=\"utf-8\"?><lcdata/>", true},
        {"another encoding", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><lcdata/>", false},
        {"comments, instructions and text are ignored",
         "<lcdata><!-- c --><?pi x?>text<codeset>more</codeset></lcdata>", true},
        {"unknown attribute", "<lcdata><locale name=\"de_DE\" colour=\"red\"/></lcdata>", true},
        {"unknown element", "<lcdata><country name=\"DE\"/></lcdata>", false},
        {"alias directly under lcdata", "<lcdata><alias name=\"x\"/></lcdata>", false},
        {"alias as the outermost element", "<alias name=\"x\"/>", true},
        {"codeset inside locale", "<lcdata><locale name=\"de_DE\"><codeset/></locale></lcdata>",
         false},
        {"locale inside locale fails at the outer end tag",
         "<lcdata><locale name=\"de_DE\"><locale name=\"fr_FR\"/></locale></lcdata>", false},
        {"locale without name", "<lcdata><locale encoding=\"UTF-8\"/></lcdata>", false},
        {"empty name counts as absent", "<lcdata><locale name=\"\"/></lcdata>", false},
        {"alias without name", "<lcdata><locale name=\"de_DE\"><alias/></locale></lcdata>", false},
        {"region_alias without name",
         "<lcdata><locale name=\"de_DE\"><region_alias/></locale></lcdata>", false},
        {"l10n without disable", "<lcdata><locale name=\"de_DE\"><l10n/></locale></lcdata>", false},
        {"encoding without name",
         "<lcdata><codeset><encoding jvm_encoding=\"x\"/></codeset></lcdata>", false},
        {"encoding_alias without name",
         "<lcdata><codeset><encoding "
         "name=\"UTF-8\"><encoding_alias/></encoding></codeset></lcdata>",
         false},
        {"encoding_alias with no encoding before it", "<encoding_alias name=\"x\"/>", false},
        {"empty document", "", false},
        {"unclosed root", "<lcdata>", false},
        {"not well-formed", "<lcdata></codeset>", false},
    };
    for (auto const& c : cases) {
        parsed_document doc;
        if (c.accepted) {
            EXPECT_NO_THROW(doc.parse(c.text)) << c.why;
        } else {
            EXPECT_THROW(doc.parse(c.text), LcRscInvalidXmlDoc) << c.why;
        }
    }
}

// 35: stopped by a handler. An element directly inside one of the same name passes, so the
// outer end tag is the one refused.
TEST(LcdataGrammar, ReportsWhereTheParseStopped) {
    struct {
        char const* text;
        char const* what;
    } const cases[] = {
        {"<lcdata>\n  <locale encoding=\"UTF-8\"/>\n</lcdata>",
         "XML Parse error detected with 35 at column, 28, on line, 2 in resource file."},
        {"<lcdata>\n<locale name=\"de_DE\"><locale name=\"fr_FR\"/>\n</locale></lcdata>",
         "XML Parse error detected with 35 at column, 9, on line, 3 in resource file."},
    };
    for (auto const& c : cases) {
        parsed_document doc;
        expect_thrown<LcRscInvalidXmlDoc>([&] { doc.parse(c.text); },
                                          [&](auto const& e) { EXPECT_STREQ(c.what, e.what()); });
    }
}

TEST(LcdataEffects, ChangesOnlyWhatDiffers) {
    parsed_document doc;
    doc.parse(
        "<lcdata><locale name=\"xx_XX\" encoding=\"ISO-8859-1\" xpg_name=\"xx_XX.ISO-8859-1\"/>"
        "<codeset><encoding name=\"X-NEW\" jvm_encoding=\"XNew\" compat=\"US-ASCII\">"
        "<encoding_alias name=\"xnew\"/></encoding></codeset></lcdata>");
    fl::i18n::lcmgmt::Lcdb const& db = doc.database;
    EXPECT_STREQ("ISO-8859-1", db.default_encoding_of("xx_XX"));
    EXPECT_STREQ("xx_XX.ISO-8859-1", db.xpg_name_of("xx_XX"));
    EXPECT_STREQ("X-NEW", db.standard_encoding_name("xnew"));
    EXPECT_STREQ("XNew", db.jvm_encoding_name("X-NEW"));
    EXPECT_STREQ("US-ASCII", db.find_compat_encoding("X-NEW"));

    // Empty values ask for no change, so a second, sparser mention keeps what the first set.
    doc.parse(
        "<lcdata><locale name=\"xx_XX\"/><codeset><encoding name=\"X-NEW\"/></codeset>"
        "</lcdata>");
    EXPECT_STREQ("ISO-8859-1", db.default_encoding_of("xx_XX"));
    EXPECT_STREQ("XNew", db.jvm_encoding_name("X-NEW"));
    EXPECT_EQ(strings(), doc.warnings);
}

TEST(LcdataEffects, RefusedChangesBecomeWarningsAndTheParseGoesOn) {
    struct warning_case {
        char const* why;
        char const* text;
        char const* warning;
    } const cases[] = {
        {"alias with no locale around it", "<alias name=\"x\"/>",
         "modifyLocaleDatabase:addAliasName:modifyLcAliasName;2;;x"},
        {"region alias with no locale around it", "<region_alias name=\"x\"/>",
         "modifyLocaleDatabase:addAliasName:modifyLcAliasName;2;;x"},
        {"l10n with no locale around it", "<l10n disable=\"L\"/>",
         "modifyLocaleDatabase:addL10nFlag:modifyLcOptData;2;;L"},
        {"l10n of a locale the database doesn't know",
         "<lcdata><locale name=\"zz_ZZ\"><l10n disable=\"L\"/></locale></lcdata>",
         "modifyLocaleDatabase:addL10nFlag:modifyLcOptData;4;zz_ZZ;L"},
    };
    for (auto const& c : cases) {
        parsed_document doc;
        EXPECT_NO_THROW(doc.parse(c.text)) << c.why;
        EXPECT_EQ(strings{c.warning}, doc.warnings) << c.why;
    }
}

// A document of exactly the given size, padded with a comment; complete or cut before its end.
std::string document_of_size(std::size_t size, bool complete) {
    std::string const head =
        "<lcdata><locale name=\"de_DE\"><alias name=\"deutsch\"/></locale><!--";
    std::string const tail = complete ? "--></lcdata>" : "--></lcdata";
    return head + std::string(size - head.size() - tail.size(), 'x') + tail;
}

// Reads go in pieces of 1024 bytes: the pieces' edges must neither lose text nor let a document
// that ends early pass.
TEST(LcdataFile, ReadsInPiecesAndSeesTheEnd) {
    scratch_directory const dir("lcdata_pieces");
    struct size_case {
        std::size_t size;
        bool complete;
    } const cases[] = {{1023, true}, {1024, true},  {1025, true},
                       {3000, true}, {1024, false}, {2048, false}};
    for (auto const& c : cases) {
        std::string const text = document_of_size(c.size, c.complete);
        ASSERT_EQ(c.size, text.size());
        dir.write("lcdata.xml", text);
        parsed_document doc;
        if (c.complete) {
            EXPECT_NO_THROW(parseLcData(doc.database, dir.bytes("lcdata.xml"), doc.warnings))
                << c.size;
            EXPECT_EQ("de_DE", doc.database.canonical_locale_name("deutsch")) << c.size;
        } else {
            EXPECT_THROW(parseLcData(doc.database, dir.bytes("lcdata.xml"), doc.warnings),
                         LcRscInvalidXmlDoc)
                << c.size;
        }
    }
}

// A directory opens but can't be read. The failures come as the library throws, cloneable; start-up
// picks its warning by the code.
TEST(LcdataFile, FailuresNameTheFileInPrintableForm) {
    scratch_directory const dir("lcdata_failures");
    struct {
        std::string file;
        int code;
        std::string what;
    } const cases[] = {
        {dir.bytes("caf\xC3\xA9\n.xml"), 2,
         "Failed to open file " + dir.bytes("cafC3A9A.xml") + "."},
        {dir.bytes(), 3, "Failed to read file " + dir.bytes() + "."},
    };
    for (auto const& c : cases) {
        parsed_document doc;
        expect_cloned_as_thrown<fl::i18n::LcRscExceptionBase>(
            [&] { parseLcData(doc.database, c.file, doc.warnings); },
            [&](fl::i18n::LcRscExceptionBase const& e) {
                EXPECT_EQ(c.code, e.getCode());
                EXPECT_EQ(c.what, e.what());
            });
    }
}

struct handler_failure {};

// Records the elements it sees and throws at the second.
struct throwing_handler : fl::i18n::lcmgmt::EventHandler {
    int xmlDecl(char const*, char const*, int) override { return 0; }
    int startElement(char const* name, char const**) override {
        events.push_back(name);
        return events.size() == 2 ? throw handler_failure() : 0;
    }
    int characterData(char const*, int) override { return 0; }
    int endElement(char const*) override { return 0; }
    char const* parserEncoding() const override { return nullptr; }
    strings events;
};

TEST(LcdataParser, HandlerExceptionStopsTheParseAndReachesTheCaller) {
    throwing_handler handler;
    std::istringstream input("<a><b/><c/></a>");
    EXPECT_THROW(fl::i18n::lcmgmt::parseXml(handler, input, "memory.xml"), handler_failure);
    EXPECT_EQ(handler.events, (strings{"a", "b"}));
}

}  // namespace
