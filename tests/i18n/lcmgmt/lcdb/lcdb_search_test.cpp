#include <fl/i18n/lcmgmt/lcdb.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using fl::i18n::lcmgmt::language_entry;
using fl::i18n::lcmgmt::Lcdb;

Lcdb const& database() {
    static Lcdb const db;
    return db;
}

std::string text(char const* s) {
    return s == nullptr ? "<null>" : s;
}

TEST(LcdbConstruction, BuiltInTablesLoadCleanly) {
    EXPECT_EQ(database().status(), 0);
    EXPECT_EQ(database().status_message(), "");
}

struct locale_case {
    char const* name;
    char const* canonical;
    char const* encoding;
};

class LocaleLookup : public testing::TestWithParam<locale_case> {};

TEST_P(LocaleLookup, CanonicalNameAndDefaultEncoding) {
    locale_case const& c = GetParam();
    EXPECT_EQ(database().canonical_locale_name(c.name), c.canonical) << c.name;
    EXPECT_EQ(text(database().default_encoding_of(c.name)), c.encoding) << c.name;
}

// The tables themselves are pinned elsewhere; these rows are the search's own paths.
INSTANTIATE_TEST_SUITE_P(
    Names, LocaleLookup,
    testing::Values(
        // aliases, whatever their case and separator
        locale_case{"C", "en_US_POSIX", "US-ASCII"},
        locale_case{"posix", "en_US_POSIX", "US-ASCII"}, locale_case{"en", "en_US", "ISO-8859-1"},
        locale_case{"iw_IL", "he_IL", "ISO-8859-8"}, locale_case{"ZH_hant", "zh_TW", "Big5"},
        locale_case{"zh-Hans-CN", "zh_CN", "GB2312"},
        locale_case{"hy_AM_REVISED", "hy_AM", "UTF-8"}, locale_case{"qu_PE", "quz_PE", "UTF-8"},
        // searches of the language table
        locale_case{"DE-at", "de_AT", "ISO-8859-15"}, locale_case{"ja", "ja_JP", "Shift_JIS"},
        locale_case{"sr_Latn-RS", "sr-Latn_RS", "ISO-8859-2"},
        locale_case{"zh-Hans_HK", "zh-Hans_HK", "GB2312"},
        locale_case{"az-Cyrl_AZ", "az-Cyrl_AZ", "ISO-8859-5"},
        // unknown names
        locale_case{"xx_YY", "", "UTF-8"}, locale_case{"xx-Yyyy_ZZ", "", "UTF-8"},
        locale_case{"de_ZZ", "", "UTF-8"}, locale_case{"english", "", "UTF-8"},
        locale_case{"", "", ""}));

TEST(LanguageTable, SeveralRowsWithoutDefaultGiveTheNullEntry) {
    // de has rows for several scripts and regions and none of them is a default row.
    EXPECT_TRUE(database().find_language_entry("de", "", "").is_null());
    EXPECT_TRUE(database().find_language_entry("xx", "", "").is_null());
    // A region that picks one of them settles it.
    language_entry const at = database().find_language_entry("de", "", "AT");
    ASSERT_FALSE(at.is_null());
    EXPECT_EQ(text(database().region_of(at)), "AT BE CH DE LI LU");
}

TEST(LanguageTable, ScriptAndRegionTogetherReturnTheFirstMatchingRow) {
    language_entry const row = database().find_language_entry("zh", "hant", "MO");
    ASSERT_FALSE(row.is_null());
    EXPECT_EQ(text(database().script_of(row)), "Hant");
    EXPECT_EQ(text(database().region_of(row)), "MO TW");
    EXPECT_EQ(text(database().encoding_of(row)), "Big5");
    EXPECT_EQ(row.is_default, 1);
}

TEST(LanguageTable, FullNameSearchNarrowsToTheAskedParts) {
    auto const row =
        database().find_locale_entry(fl::i18n::lcmgmt::parse_locale_name("az-arab_AZ"));
    EXPECT_EQ(text(database().script_of(row)), "Arab");
    EXPECT_EQ(text(database().region_of(row)), "AZ");
    EXPECT_EQ(database().canonical_name_of(row), "az-Arab_AZ");
    // A lone language with one single-region row keeps that region but no script.
    EXPECT_EQ(database().canonical_locale_name("ab"), "ab_GE");
}

struct encoding_case {
    char const* query;
    char const* name;
    char const* jvm;
};

class EncodingLookup : public testing::TestWithParam<encoding_case> {};

TEST_P(EncodingLookup, NameAndJvmName) {
    encoding_case const& c = GetParam();
    EXPECT_EQ(text(database().standard_encoding_name(c.query)), c.name) << c.query;
    EXPECT_EQ(text(database().jvm_encoding_name(c.query)), c.jvm) << c.query;
    // Aliases share one entry.
    EXPECT_EQ(database().find_encoding_entry(c.query), database().find_encoding_entry(c.name));
}

INSTANTIATE_TEST_SUITE_P(Names, EncodingLookup,
                         testing::Values(encoding_case{"WINDOWS-1252", "windows-1252", "Cp1252"},
                                         encoding_case{"1252", "windows-1252", "Cp1252"},
                                         encoding_case{"utf8", "UTF-8", "UTF-8"},
                                         encoding_case{"Windows31J", "Shift_JIS", "MS932"},
                                         encoding_case{"ANSI_X3.4-1968", "US-ASCII", "US-ASCII"},
                                         encoding_case{"nosuch", "<null>", "<null>"},
                                         encoding_case{"", "<null>", "<null>"}));

TEST(EncodingTable, NeighboursKeepEntriesOfTheirOwn) {
    EXPECT_NE(database().find_encoding_entry("Big5"), database().find_encoding_entry("Big5-HKSCS"));
}

}  // namespace
