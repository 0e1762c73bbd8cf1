#include <fl/i18n/lcmgmt/locale_name.hpp>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using fl::i18n::lcmgmt::locale_name_context;
using fl::i18n::lcmgmt::parse_locale_name;

// "[a][][b]": an empty element stays visible, and no elements give the empty string.
std::string joined(std::vector<std::string> const& parts) {
    std::string out;
    for (std::string const& part : parts) {
        out += "[" + part + "]";
    }
    return out;
}

// One line per record, so a table row states every member at once and a failure shows them all.
std::string describe(locale_name_context const& c) {
    if (c.empty()) {
        return "<empty>";
    }
    std::string ext;
    for (auto const& e : c.extensions) {
        ext += std::string("[") + e.singleton + ":" + e.value + "]";
    }
    return "lang=" + c.language + " script=" + c.script + " region=" + c.region +
           " enc=" + c.encoding + " mod=" + joined(c.modifiers) + " var=" + joined(c.variants) +
           " ext=" + ext + " pu=" + c.private_use_prefix + joined(c.private_use);
}

struct parse_case {
    char const* name;
    char const* expected;
};

class ParseLocaleName : public testing::TestWithParam<parse_case> {};

TEST_P(ParseLocaleName, TakesTheNameApart) {
    EXPECT_EQ(describe(parse_locale_name(GetParam().name)), GetParam().expected)
        << "name: \"" << GetParam().name << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Valid, ParseLocaleName,
    testing::Values(
        parse_case{"en", "lang=en script= region= enc= mod= var= ext= pu="},
        parse_case{"ast", "lang=ast script= region= enc= mod= var= ext= pu="},
        parse_case{"EN_us", "lang=EN script= region=us enc= mod= var= ext= pu="},
        parse_case{"en_US.UTF-8@euro",
                   "lang=en script= region=US enc=UTF-8 mod=[euro] var= ext= pu="},
        // "@" is cut first, so a dot after it belongs to the modifier.
        parse_case{"en_US@euro.UTF-8",
                   "lang=en script= region=US enc= mod=[euro.UTF-8] var= ext= pu="},
        parse_case{"de_DE@a@@b", "lang=de script= region=DE enc= mod=[a][][b] var= ext= pu="},
        parse_case{"de_DE@", "lang=de script= region=DE enc= mod=[] var= ext= pu="},
        // The encoding is cut before the tag is read, so its own separators don't matter.
        parse_case{"ja_JP.Shift_JIS", "lang=ja script= region=JP enc=Shift_JIS mod= var= ext= pu="},
        parse_case{"sr-Latn_RS", "lang=sr script=Latn region=RS enc= mod= var= ext= pu="},
        parse_case{"sr_Latn-RS", "lang=sr script=Latn region=RS enc= mod= var= ext= pu="},
        parse_case{"es_419", "lang=es script= region=419 enc= mod= var= ext= pu="},
        parse_case{"en_US_POSIX", "lang=en script= region=US enc= mod= var=[POSIX] ext= pu="},
        parse_case{"hy_AM_REVISED", "lang=hy script= region=AM enc= mod= var=[REVISED] ext= pu="},
        parse_case{"de_DE_1901a_abcdefgh",
                   "lang=de script= region=DE enc= mod= var=[1901a][abcdefgh] ext= pu="},
        // Later scripts and regions overwrite earlier ones; order isn't checked.
        parse_case{"en_GB_Latn_US", "lang=en script=Latn region=US enc= mod= var= ext= pu="},
        parse_case{"en_a_bb", "lang=en script= region= enc= mod= var= ext=[a:bb] pu="},
        parse_case{"en-US-u-co-phonebk",
                   "lang=en script= region=US enc= mod= var=[phonebk] ext=[u:co] pu="},
        parse_case{"en-x-bb", "lang=en script= region= enc= mod= var= ext= pu=x[bb]"},
        parse_case{"en_US-X-Ab-1", "lang=en script= region=US enc= mod= var= ext= pu=X[Ab][1]"},
        parse_case{"en-x-a-x-b", "lang=en script= region= enc= mod= var= ext= pu=x[a][x][b]"}));

// Modifiers and encoding found before a bad tag are dropped with it; bytes above 0x7F are letters
// in no locale here.
TEST(ParseLocaleName, RefusesMalformedNamesWhole) {
    std::istringstream malformed(
        "|e|english|e1|en_|en_U|en__US|en_US_a|en_a_b|en_a_b_cc|en_a_abcdefghi|en_x_bb|en-x-|"
        "en-x-a--b|en-x-abcdefghi|en-x-ab_cd|-x-ab|de_DE_1996|en_Lat1|en_12|en_\xC3\xA9|\xE9n_US|"
        "e@euro|english.UTF-8");
    for (std::string name; std::getline(malformed, name, '|');) {
        EXPECT_TRUE(parse_locale_name(name).empty()) << '"' << name << '"';
    }
}

struct forms_case {
    char const* name;
    char const* language_and_script;
    char const* language_and_region;
    char const* canonical;
    char const* posix;
    char const* tag;
    char const* modifiers;
    char const* variants;
};

class LocaleNameForms : public testing::TestWithParam<forms_case> {};

TEST_P(LocaleNameForms, SkipTheSeparatorsOfEmptyParts) {
    forms_case const& f = GetParam();
    locale_name_context const c = parse_locale_name(f.name);
    EXPECT_EQ(c.language_and_script(), f.language_and_script);
    EXPECT_EQ(c.language_and_region(), f.language_and_region);
    EXPECT_EQ(c.canonical_name(), f.canonical);
    EXPECT_EQ(c.posix_name(), f.posix);
    EXPECT_EQ(c.tag(), f.tag);
    EXPECT_EQ(c.modifiers_string(), f.modifiers);
    EXPECT_EQ(c.variants_string(), f.variants);
}

INSTANTIATE_TEST_SUITE_P(
    All, LocaleNameForms,
    testing::Values(
        forms_case{"en", "en", "en", "en", "en", "en", "", ""},
        forms_case{"sr_Latn-RS.UTF-8@a@b", "sr-Latn", "sr_RS", "sr-Latn_RS", "sr-Latn_RS.UTF-8@a@b",
                   "sr-Latn-RS", "@a@b", ""},
        forms_case{"zh-Hant", "zh-Hant", "zh", "zh-Hant", "zh-Hant", "zh-Hant", "", ""},
        forms_case{"de.ISO-8859-15@euro", "de", "de", "de", "de.ISO-8859-15@euro", "de", "@euro",
                   ""},
        forms_case{"de_DE@a@@b", "de", "de_DE", "de_DE", "de_DE@a@@b", "de-DE", "@a@@b", ""},
        forms_case{"hy_AM_REVISED_1606nict", "hy", "hy_AM", "hy_AM", "hy_AM",
                   "hy-AM-REVISED-1606nict", "", "-REVISED-1606nict"},
        // Variants come before extensions, and private use last, whatever the order written.
        forms_case{"en-u-co-US-phonebk-X-a-1", "en", "en_US", "en_US", "en_US",
                   "en-US-phonebk-u-co-X-a-1", "", "-phonebk"},
        // A name that doesn't parse gives the empty string in every form.
        forms_case{"english.UTF-8@euro", "", "", "", "", "", "", ""}));

}  // namespace
