#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include "lcdata_test_support.hpp"

#include <gtest/gtest.h>

namespace {

using fl::i18n::LcRscInvalidXmlDoc;

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

TEST(LcdataGrammar, ReportsWhereTheParseStopped) {
    parsed_document doc;
    try {
        doc.parse("<lcdata>\n  <locale encoding=\"UTF-8\"/>\n</lcdata>");
        FAIL() << "a locale without a name must fail";
    } catch (LcRscInvalidXmlDoc const& e) {
        // 35: stopped by a handler.
        EXPECT_STREQ("XML Parse error detected with 35 at column, 28, on line, 2 in resource file.",
                     e.what());
        EXPECT_EQ("fl:i18n:LcRscInvalidXmlDoc", e.getId());
        EXPECT_EQ(5, e.getCode());
    }
}

}  // namespace
