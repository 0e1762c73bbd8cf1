#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include "lcdata_test_support.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using fl::i18n::LcRscInvalidXmlDoc;
using strings = std::vector<std::string>;

std::string text_or_empty(char const* text) {
    return text == nullptr ? std::string() : std::string(text);
}

TEST(LcdataEffects, SampleDatabaseAddsItsNamesWithoutWarnings) {
    parsed_document doc;
    fl::i18n::lcmgmt::parseLcData(doc.database, std::getenv("OVI18N_SAMPLE_LCDATA"), doc.warnings);
    EXPECT_EQ(strings(), doc.warnings);
    fl::i18n::lcmgmt::Lcdb const& db = doc.database;
    EXPECT_EQ("de_DE", db.canonical_locale_name("deutsch"));
    EXPECT_EQ("nb_NO", db.canonical_locale_name("bokmal"));
    EXPECT_EQ("en_GB", db.region_alias_of("en_UK"));
    EXPECT_EQ("L", db.optional_data("cy_GB", "disable_l10n").first);
    EXPECT_EQ("EUC-JP", text_or_empty(db.standard_encoding_name("ujis")));
    EXPECT_EQ("TIS620", text_or_empty(db.jvm_encoding_name("tis620")));
}

TEST(LcdataEffects, ChangesOnlyWhatDiffers) {
    parsed_document doc;
    doc.parse(
        "<lcdata><locale name=\"xx_XX\" encoding=\"ISO-8859-1\" xpg_name=\"xx_XX.ISO-8859-1\"/>"
        "<codeset><encoding name=\"X-NEW\" jvm_encoding=\"XNew\" compat=\"US-ASCII\">"
        "<encoding_alias name=\"xnew\"/></encoding></codeset></lcdata>");
    fl::i18n::lcmgmt::Lcdb const& db = doc.database;
    EXPECT_STREQ("ISO-8859-1", db.default_encoding_of("xx_XX"));
    EXPECT_EQ("xx_XX.ISO-8859-1", text_or_empty(db.xpg_name_of("xx_XX")));
    EXPECT_EQ("X-NEW", text_or_empty(db.standard_encoding_name("xnew")));
    EXPECT_EQ("XNew", text_or_empty(db.jvm_encoding_name("X-NEW")));
    EXPECT_EQ("US-ASCII", text_or_empty(db.find_compat_encoding("X-NEW")));

    // Empty values ask for no change, so a second, sparser mention keeps what the first set.
    doc.parse(
        "<lcdata><locale name=\"xx_XX\"/><codeset><encoding name=\"X-NEW\"/></codeset>"
        "</lcdata>");
    EXPECT_STREQ("ISO-8859-1", db.default_encoding_of("xx_XX"));
    EXPECT_EQ("XNew", text_or_empty(db.jvm_encoding_name("X-NEW")));
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

TEST(LcdataEffects, ElementsBeforeAFailureStayApplied) {
    parsed_document doc;
    EXPECT_THROW(doc.parse("<lcdata><locale name=\"de_DE\"><alias name=\"teutonic\"/></locale>"
                           "<locale encoding=\"UTF-8\"/>"
                           "<locale name=\"fr_FR\"><alias name=\"gallic\"/></locale></lcdata>"),
                 LcRscInvalidXmlDoc);
    EXPECT_EQ("de_DE", doc.database.canonical_locale_name("teutonic"));
    EXPECT_EQ("", doc.database.canonical_locale_name("gallic"));
}

}  // namespace
