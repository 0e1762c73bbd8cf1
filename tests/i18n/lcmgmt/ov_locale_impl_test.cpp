#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace {

using fl::i18n::OvLcDataNotFound;
using fl::i18n::OvLcInvLcArgument;
using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;
using fl::i18n::OvLocaleImpl;

constexpr int category_count = OvLocaleImpl::category_count;

OvLocale::LcCategory category(int c) {
    return static_cast<OvLocale::LcCategory>(c);
}

// A locale whose category c is named names[c] with modifier "@m<c>", so a mix-up between
// categories shows. Modifiers are stored without their marker, which getModifier adds.
std::unique_ptr<OvLocaleImpl> distinct_locale() {
    static char const* const names[] = {"de_DE", "fr_FR", "sr-Latn_RS", "C", "en_GB", "ja_JP"};
    auto locale = std::make_unique<OvLocaleImpl>(nullptr);
    for (int c = 0; c < category_count; ++c) {
        locale->set_category(names[c], "m" + std::to_string(c), category(c));
    }
    locale->set_encoding("UTF-8");
    return locale;
}

std::string text(OvLcOptDataCtx::value_type const& value) {
    return boost::get<std::string>(value);
}

struct stored_name_case {
    OvLocale::LcCategory category;
    char const* given;
    char const* stored;
};

class MessagesInvariant : public testing::TestWithParam<stored_name_case> {};

TEST_P(MessagesInvariant, OnlyMessagesTurnsPosixIntoEnUs) {
    OvLocaleImpl locale(nullptr);
    locale.set_category(GetParam().given, "", GetParam().category);
    EXPECT_EQ(locale.getLocaleName(GetParam().category), GetParam().stored);

    // A copy keeps the invariant, whatever the source claims.
    OvLocaleImpl const copy(nullptr, locale);
    EXPECT_EQ(copy.getLocaleName(GetParam().category), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(
    Names, MessagesInvariant,
    testing::Values(stored_name_case{OvLocale::messages, "en_US_POSIX", "en_US"},
                    stored_name_case{OvLocale::ctype, "en_US_POSIX", "en_US_POSIX"},
                    stored_name_case{OvLocale::numeric, "en_US_POSIX", "en_US_POSIX"},
                    stored_name_case{OvLocale::time, "en_US_POSIX", "en_US_POSIX"},
                    // Only the exact name is replaced.
                    stored_name_case{OvLocale::messages, "EN_US_POSIX", "EN_US_POSIX"},
                    stored_name_case{OvLocale::messages, "en_US_POSIX.UTF-8", "en_US_POSIX.UTF-8"},
                    stored_name_case{OvLocale::messages, "de_DE", "de_DE"}));

// Each row changes one thing in a copy of distinct_locale(); equality must notice all but the
// terminal encoding.
struct change_case {
    char const* what;
    std::function<void(OvLocaleImpl&)> change;
    bool equal;
};

class LocaleEquality : public testing::TestWithParam<change_case> {};

TEST_P(LocaleEquality, ComparesNamesModifiersAndEncodingOnly) {
    auto const base = distinct_locale();
    OvLocaleImpl changed(nullptr, *base);
    ASSERT_TRUE(changed == *base);
    GetParam().change(changed);
    EXPECT_EQ(changed == *base, GetParam().equal);
    EXPECT_EQ(*base == changed, GetParam().equal);
    EXPECT_NE(changed != *base, GetParam().equal);
    EXPECT_NE(*base != changed, GetParam().equal);
}

std::vector<change_case> equality_cases() {
    std::vector<change_case> cases;
    for (int c = 0; c < category_count; ++c) {
        cases.push_back({"name",
                         [c](OvLocaleImpl& l) {
                             l.set_category("it_IT", "m" + std::to_string(c), category(c));
                         },
                         false});
        cases.push_back({"modifier",
                         [c](OvLocaleImpl& l) {
                             l.set_category(l.getLocaleName(category(c)), "other", category(c));
                         },
                         false});
    }
    cases.push_back({"encoding", [](OvLocaleImpl& l) { l.set_encoding("ISO-8859-1"); }, false});
    cases.push_back({"terminal encoding",
                     [](OvLocaleImpl& l) { l.set_terminal_encoding("ISO-8859-1"); }, true});
    cases.push_back({"nothing", [](OvLocaleImpl&) {}, true});
    return cases;
}

INSTANTIATE_TEST_SUITE_P(OneChange, LocaleEquality, testing::ValuesIn(equality_cases()),
                         [](testing::TestParamInfo<change_case> const& info) {
                             std::string name = info.param.what;
                             for (char& ch : name) {
                                 ch = (ch == ' ') ? '_' : ch;
                             }
                             return name + "_" + std::to_string(info.index);
                         });

TEST(LocaleCopy, TakesTheTerminalEncodingOrElseTheEncoding) {
    auto const source = distinct_locale();
    EXPECT_EQ(OvLocaleImpl(nullptr, *source).terminal_encoding(), "UTF-8");

    source->set_terminal_encoding("ISO-8859-15");
    OvLocaleImpl const copy(nullptr, *source);
    EXPECT_EQ(copy.terminal_encoding(), "ISO-8859-15");
    EXPECT_EQ(copy.getEncoding(), "UTF-8");
}

TEST(LocaleCopy, ReadsAnyOvLocaleThroughItsInterface) {
    // The copy must not assume its source is an OvLocaleImpl.
    struct foreign : OvLocale {
        bool operator==(OvLocale const&) const override { return false; }
        bool operator!=(OvLocale const&) const override { return true; }
        std::string getLocaleName(LcCategory c) const override {
            return c == messages ? "en_US_POSIX" : "pt_BR";
        }
        std::string getLanguage(LcCategory) const override { return "pt"; }
        std::string getRegion(LcCategory) const override { return "BR"; }
        std::string getModifier(LcCategory c) const override { return c == time ? "@a@@b" : ""; }
        std::string getEncoding() const override { return "ISO-8859-1"; }
        OvLcOptDataCtx::value_type getOptData(OvLcOptDataCtx::LcOptDataType) const override {
            return std::string("UTF-8");
        }
    } const source;
    OvLocaleImpl const copy(nullptr, source);
    EXPECT_EQ(copy.getLocaleName(OvLocale::ctype), "pt_BR");
    EXPECT_EQ(copy.getLocaleName(OvLocale::messages), "en_US");
    EXPECT_EQ(copy.getModifier(OvLocale::time), "@a@@b");
    EXPECT_EQ(copy.getModifier(OvLocale::ctype), "");
    EXPECT_EQ(copy.getEncoding(), "ISO-8859-1");
    EXPECT_EQ(copy.terminal_encoding(), "UTF-8");
}

struct language_case {
    char const* name;
    char const* language;
    char const* region;
};

class LanguageAndRegion : public testing::TestWithParam<language_case> {};

TEST_P(LanguageAndRegion, ComeFromTheCategoryName) {
    OvLocaleImpl locale(nullptr);
    locale.set_category("xx", "", OvLocale::ctype);
    locale.set_category(GetParam().name, "euro", OvLocale::monetary);
    EXPECT_EQ(locale.getLanguage(OvLocale::monetary), GetParam().language);
    EXPECT_EQ(locale.getRegion(OvLocale::monetary), GetParam().region);
}

INSTANTIATE_TEST_SUITE_P(Names, LanguageAndRegion,
                         testing::Values(language_case{"de_DE", "de", "DE"},
                                         language_case{"sr-Latn_RS", "sr-Latn", "RS"},
                                         language_case{"zh_Hant", "zh-Hant", ""},
                                         language_case{"en_US_POSIX", "en", "US"},
                                         language_case{"es_419", "es", "419"},
                                         language_case{"C", "", ""}, language_case{"", "", ""}));

TEST(LocaleCategories, OutOfRangeIsDataNotFound) {
    OvLocaleImpl locale(nullptr);
    // 6 and 7 are values of the enumeration without a name; anything further is undefined.
    for (int c : {category_count, category_count + 1}) {
        SCOPED_TRACE(c);
        EXPECT_THROW(locale.getLocaleName(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getLanguage(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getRegion(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getModifier(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.set_category("de_DE", "", category(c)), OvLcDataNotFound);
    }
}

TEST(OptionalData, TerminalEncodingsFallBackToTheEncoding) {
    OvLocaleImpl locale(nullptr);
    locale.set_encoding("ISO-8859-1");
    for (char const* terminal : {"", "UTF-8"}) {
        locale.set_terminal_encoding(terminal);
        std::string const expected = *terminal ? terminal : "ISO-8859-1";
        for (auto type : {OvLcOptDataCtx::termencoding, OvLcOptDataCtx::termoutputencoding,
                          OvLcOptDataCtx::terminputencoding}) {
            EXPECT_EQ(text(locale.getOptData(type)), expected) << type << " '" << terminal << "'";
        }
    }
}

TEST(OptionalData, PaperSizeAndUnitsFollowTheTimeCategory) {
    OvLocaleImpl german_time(nullptr);
    OvLocaleImpl us_time(nullptr);
    for (int c = 0; c < category_count; ++c) {
        german_time.set_category(c == OvLocale::time ? "de_DE" : "en_US", "", category(c));
        us_time.set_category(c == OvLocale::time ? "en_US" : "de_DE", "", category(c));
    }
    using P = OvLcOptDataCtx::LcPaperSizeType;
    using U = OvLcOptDataCtx::LcUnitType;
    EXPECT_EQ(boost::get<P>(german_time.getOptData(OvLcOptDataCtx::papersize)),
              OvLcOptDataCtx::paper_a4);
    EXPECT_EQ(boost::get<P>(us_time.getOptData(OvLcOptDataCtx::papersize)),
              OvLcOptDataCtx::paper_other);
    EXPECT_EQ(boost::get<U>(german_time.getOptData(OvLcOptDataCtx::unittype)),
              OvLcOptDataCtx::unit_metric);
    EXPECT_EQ(boost::get<U>(us_time.getOptData(OvLcOptDataCtx::unittype)), OvLcOptDataCtx::unit_us);
}

TEST(OptionalData, UnknownTypeIsInvalidArgument) {
    OvLocaleImpl locale(nullptr);
    for (int t : {6, 7}) {
        EXPECT_THROW(locale.getOptData(static_cast<OvLcOptDataCtx::LcOptDataType>(t)),
                     OvLcInvLcArgument)
            << t;
    }
}

}  // namespace
