#include <fl/i18n/lcmgmt/lcdb.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

namespace {

using fl::i18n::ustring;
using fl::i18n::lcmgmt::Lcdb;

std::string text(char const* s) {
    return s == nullptr ? "<null>" : s;
}

struct modify_case {
    char const* what;
    std::function<std::int32_t(Lcdb&)> operation;
    std::int32_t code;
};

class ModifyCodes : public testing::TestWithParam<modify_case> {};

TEST_P(ModifyCodes, AnswerWithTheirCode) {
    Lcdb db;
    EXPECT_EQ(GetParam().operation(db), GetParam().code) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ModifyCodes,
    testing::Values(
        modify_case{"entry, empty name", [](Lcdb& d) { return d.modifyLcEntry("", "UTF-8", "x"); },
                    2},
        modify_case{"entry",
                    [](Lcdb& d) { return d.modifyLcEntry("de_DE", "UTF-8", "de_DE.utf8"); }, 0},
        modify_case{"encoding, empty name", [](Lcdb& d) { return d.modifyDefEncoding("", "X"); },
                    2},
        modify_case{"xpg, empty value", [](Lcdb& d) { return d.modifyXpgName("de_DE", ""); }, 2},
        modify_case{"alias, empty", [](Lcdb& d) { return d.modifyLcAliasName("", "x"); }, 2},
        modify_case{"alias already resolves",
                    [](Lcdb& d) { return d.modifyLcAliasName("de_DE", "de"); }, 1},
        modify_case{"new alias", [](Lcdb& d) { return d.modifyLcAliasName("de_DE", "deutsch"); },
                    0},
        modify_case{"region alias", [](Lcdb& d) { return d.modifyRegionAliasName("de_DE", "DE"); },
                    0},
        modify_case{"opt data, no values",
                    [](Lcdb& d) { return d.modifyLcOptData("de_DE", "k", "", ustring()); }, 2},
        modify_case{"opt data, unknown locale",
                    [](Lcdb& d) { return d.modifyLcOptData("xx_YY", "k", "v", ustring()); }, 4},
        modify_case{"opt data", [](Lcdb& d) { return d.modifyLcOptData("de_DE", "k", "", u"v"); },
                    0},
        modify_case{"jvm, empty", [](Lcdb& d) { return d.modifyJvmName("", "x"); }, 2},
        modify_case{"encoding alias, empty",
                    [](Lcdb& d) { return d.modifyEncodingAlias("UTF-8", ""); }, 2},
        modify_case{"remove alias, absent", [](Lcdb& d) { return d.removeLcAliasName("nosuch"); },
                    3},
        modify_case{"remove canonical alias",
                    [](Lcdb& d) { return d.removeLcAliasName("en_US_POSIX"); }, 4},
        modify_case{"remove alias", [](Lcdb& d) { return d.removeLcAliasName("iw"); }, 0},
        modify_case{"remove alias, empty", [](Lcdb& d) { return d.removeLcAliasName(""); }, 2},
        modify_case{"remove default encoding, absent",
                    [](Lcdb& d) { return d.removeDefEncoding("de"); }, 0},
        modify_case{"remove xpg, empty", [](Lcdb& d) { return d.removeXpgName(""); }, 2},
        modify_case{"remove compat, absent", [](Lcdb& d) { return d.removeCompatEncoding("x"); },
                    0},
        modify_case{"remove jvm, unknown", [](Lcdb& d) { return d.removeJvmName("nosuch"); }, 3},
        modify_case{"remove jvm", [](Lcdb& d) { return d.removeJvmName("Big5"); }, 0},
        modify_case{"remove encoding, unknown", [](Lcdb& d) { return d.removeEncoding("nosuch"); },
                    3},
        modify_case{"remove encoding", [](Lcdb& d) { return d.removeEncoding("cp1252"); }, 0},
        modify_case{"remove opt data, unknown locale",
                    [](Lcdb& d) { return d.removeLcOptData("xx_YY", "k"); }, 4},
        modify_case{"remove opt data, absent",
                    [](Lcdb& d) { return d.removeLcOptData("de_DE", "k"); }, 3}));

TEST(LcdbModify, EntryStoresUnderTheCanonicalKeyAndEmptyErases) {
    Lcdb db;
    ASSERT_EQ(db.modifyLcEntry("de_AT", "ISO-8859-1", "de_AT.iso88591"), 0);
    EXPECT_EQ(text(db.default_encoding_of("de_AT")), "ISO-8859-1");
    EXPECT_EQ(text(db.xpg_name_of("DE-at")), "de_AT.iso88591");
    EXPECT_EQ(text(db.find_default_encoding("de-AT")), "ISO-8859-1");
    ASSERT_EQ(db.modifyDefEncoding("de_AT", ""), 0);
    EXPECT_EQ(text(db.default_encoding_of("de_AT")), "ISO-8859-15");
    EXPECT_EQ(text(db.xpg_name_of("de_AT")), "de_AT.iso88591");
}

TEST(LcdbModify, UnknownLocaleBecomesItsOwnCanonicalName) {
    Lcdb db;
    ASSERT_EQ(db.modifyLcEntry("xx_YY", "EUC-JP", ""), 0);
    EXPECT_EQ(db.canonical_locale_name("XX-yy"), "xx_YY");
    EXPECT_EQ(text(db.default_encoding_of("xx_YY")), "EUC-JP");
    // Being canonical, it is protected from removal.
    EXPECT_EQ(db.removeLcAliasName("xx_YY"), 4);
}

TEST(LcdbModify, AliasesResolveToTheirName) {
    Lcdb db;
    ASSERT_EQ(db.modifyLcAliasName("de_DE", "Deutsch"), 0);
    EXPECT_EQ(db.canonical_locale_name("deutsch"), "de_DE");
    EXPECT_EQ(db.modifyLcAliasName("de_DE", "deutsch"), 1);
    ASSERT_EQ(db.modifyRegionAliasName("fr_FR", "fr_BE"), 0);
    EXPECT_EQ(db.region_alias_of("FR-be"), "fr_FR");
    EXPECT_EQ(db.region_alias_of("fr_CA"), "");
    EXPECT_EQ(db.modifyRegionAliasName("fr_FR", "fr_BE"), 1);
}

TEST(LcdbModify, OptionalDataIsKeptUnderTheCanonicalName) {
    Lcdb db;
    ASSERT_EQ(db.modifyLcOptData("de", "disable_l10n", "L", u"x"), 0);
    EXPECT_EQ(db.optional_data("de_DE", "disable_l10n").first, "L");
    EXPECT_EQ(db.optional_data("de_DE", "disable_l10n").second, u"x");
    EXPECT_EQ(db.optional_data("de_AT", "disable_l10n").first, "");
    EXPECT_EQ(db.optional_data("", "disable_l10n").first, "");
    EXPECT_EQ(db.removeLcOptData("de", "disable_l10n"), 0);
    EXPECT_EQ(db.optional_data("de_DE", "disable_l10n").first, "");
}

TEST(LcdbModify, EncodingsAreCreatedOnDemandAndShareEntriesWithAliases) {
    Lcdb db;
    ASSERT_EQ(db.modifyEncodingAlias("X-Custom", "custom-alias"), 0);
    EXPECT_EQ(text(db.standard_encoding_name("CUSTOM-ALIAS")), "X-Custom");
    ASSERT_EQ(db.modifyJvmName("custom-alias", "JCustom"), 0);
    EXPECT_EQ(text(db.jvm_encoding_name("x-custom")), "JCustom");
    EXPECT_EQ(text(db.standard_encoding_name("jcustom")), "JCustom");
    ASSERT_EQ(db.modifyJvmName("x-custom", ""), 0);
    EXPECT_EQ(text(db.jvm_encoding_name("x-custom")), "X-Custom");

    ASSERT_EQ(db.modifyCompatEncoding("X-Custom", "windows-1252"), 0);
    EXPECT_EQ(text(db.find_compat_encoding("x-custom")), "windows-1252");
    ASSERT_EQ(db.modifyEncodingDataEntry("X-Custom", "JC2", ""), 0);
    EXPECT_EQ(text(db.find_compat_encoding("x-custom")), "<null>");
    EXPECT_EQ(text(db.jvm_encoding_name("X-CUSTOM")), "JC2");
}

TEST(LcdbIntern, EqualTextSharesOneCopy) {
    Lcdb db;
    std::string const a = "some text";
    char const* first = db.intern(a);
    EXPECT_EQ(db.intern(std::string("some text")), first);
    EXPECT_NE(static_cast<void const*>(first), static_cast<void const*>(a.c_str()));
    EXPECT_STREQ(first, "some text");
}

}  // namespace
