#include <fl/i18n/lcmgmt/lcdb.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using fl::i18n::ustring;
using fl::i18n::lcmgmt::Lcdb;

std::string text(char const* s) {
    return s == nullptr ? "<null>" : s;
}

// Codes: 0 done, 1 already so, 2 empty argument, 3 nothing to remove, 4 locale unknown or
// protected. Each group starts from the built-in tables; the tests below check modifications done.
TEST(LcdbModify, AnswerWithTheirCode) {
    Lcdb empty;
    EXPECT_EQ(empty.modifyLcEntry("", "UTF-8", "x"), 2);
    EXPECT_EQ(empty.modifyXpgName("de_DE", ""), 2);
    EXPECT_EQ(empty.modifyLcOptData("de_DE", "k", "", ustring()), 2);
    EXPECT_EQ(empty.modifyEncodingAlias("UTF-8", ""), 2);
    EXPECT_EQ(empty.removeLcAliasName(""), 2);

    Lcdb absent;
    EXPECT_EQ(absent.modifyLcAliasName("de_DE", "de"), 1) << "the alias already resolves";
    EXPECT_EQ(absent.removeLcAliasName("nosuch"), 3);
    EXPECT_EQ(absent.removeJvmName("nosuch"), 3);
    EXPECT_EQ(absent.removeEncoding("nosuch"), 3);
    EXPECT_EQ(absent.removeLcOptData("de_DE", "k"), 3);
    EXPECT_EQ(absent.removeDefEncoding("de"), 0) << "removing what isn't there is no error";
    EXPECT_EQ(absent.removeCompatEncoding("x"), 0) << "removing what isn't there is no error";
    EXPECT_EQ(absent.modifyLcOptData("xx_YY", "k", "v", ustring()), 4);
    EXPECT_EQ(absent.removeLcOptData("xx_YY", "k"), 4);
    EXPECT_EQ(absent.removeLcAliasName("en_US_POSIX"), 4) << "a canonical name";

    Lcdb done;
    EXPECT_EQ(done.removeLcAliasName("iw"), 0);
    EXPECT_EQ(done.removeJvmName("Big5"), 0);
    EXPECT_EQ(done.removeEncoding("cp1252"), 0);
}

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

}  // namespace
