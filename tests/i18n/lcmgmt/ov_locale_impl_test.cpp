#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace {

using fl::i18n::OvLcDataNotFound;
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

TEST(LocaleNames, OnlyMessagesTurnsPosixIntoEnUs) {
    auto const expect_stored = [](OvLocale::LcCategory c, char const* given, char const* stored) {
        OvLocaleImpl locale(nullptr);
        locale.set_category(given, "", c);
        EXPECT_EQ(locale.getLocaleName(c), stored) << given;
        // A copy keeps the invariant, whatever the source claims.
        EXPECT_EQ(OvLocaleImpl(nullptr, locale).getLocaleName(c), stored) << given;
    };
    expect_stored(OvLocale::messages, "en_US_POSIX", "en_US");
    expect_stored(OvLocale::ctype, "en_US_POSIX", "en_US_POSIX");
    expect_stored(OvLocale::time, "en_US_POSIX", "en_US_POSIX");
    // Only the exact name is replaced.
    expect_stored(OvLocale::messages, "EN_US_POSIX", "EN_US_POSIX");
    expect_stored(OvLocale::messages, "en_US_POSIX.UTF-8", "en_US_POSIX.UTF-8");
}

// Shows a locale only through the interface, so the comparison can't take a short cut.
struct through_interface : OvLocale {
    explicit through_interface(OvLocale const& shown) : shown(shown) {}
    bool operator==(OvLocale const& other) const override { return shown == other; }
    bool operator!=(OvLocale const& other) const override { return shown != other; }
    std::string getLocaleName(LcCategory c) const override { return shown.getLocaleName(c); }
    std::string getLanguage(LcCategory c) const override { return shown.getLanguage(c); }
    std::string getRegion(LcCategory c) const override { return shown.getRegion(c); }
    std::string getModifier(LcCategory c) const override { return shown.getModifier(c); }
    std::string getEncoding() const override { return shown.getEncoding(); }
    OvLcOptDataCtx::value_type getOptData(OvLcOptDataCtx::LcOptDataType t) const override {
        return shown.getOptData(t);
    }
    OvLocale const& shown;
};

// Each change is made to a copy of distinct_locale(); equality must notice all but the terminal
// encoding, whether or not the other side is an OvLocaleImpl.
TEST(LocaleEquality, ComparesNamesModifiersAndEncodingOnly) {
    auto const base = distinct_locale();
    auto const expect_after = [&base](std::string const& what, bool equal,
                                      std::function<void(OvLocaleImpl&)> const& change) {
        OvLocaleImpl changed(nullptr, *base);
        change(changed);
        EXPECT_EQ(changed == *base, equal) << what;
        EXPECT_EQ(*base == changed, equal) << what;
        EXPECT_NE(changed != *base, equal) << what;
        EXPECT_NE(*base != changed, equal) << what;
        EXPECT_EQ(changed == through_interface(*base), equal) << what;
    };
    for (int c = 0; c < category_count; ++c) {
        expect_after("name " + std::to_string(c), false, [c](OvLocaleImpl& l) {
            l.set_category("it_IT", "m" + std::to_string(c), category(c));
        });
        expect_after("modifier " + std::to_string(c), false, [c](OvLocaleImpl& l) {
            l.set_category(l.getLocaleName(category(c)), "other", category(c));
        });
    }
    expect_after("encoding", false, [](OvLocaleImpl& l) { l.set_encoding("ISO-8859-1"); });
    expect_after("terminal encoding", true,
                 [](OvLocaleImpl& l) { l.set_terminal_encoding("ISO-8859-1"); });
    expect_after("nothing", true, [](OvLocaleImpl&) {});
}

// From an OvLocaleImpl directly, from any other OvLocale through its interface: the terminal
// encoding, or else the encoding, and the modifiers without their marker.
TEST(LocaleCopy, TakesEverythingFromAnyOvLocale) {
    auto const source = distinct_locale();
    EXPECT_EQ(OvLocaleImpl(nullptr, *source).terminal_encoding(), "UTF-8");
    EXPECT_EQ(OvLocaleImpl(nullptr, through_interface(*source)).terminal_encoding(), "UTF-8");

    source->set_terminal_encoding("ISO-8859-15");
    OvLocaleImpl const direct(nullptr, *source);
    OvLocaleImpl const foreign(nullptr, through_interface(*source));
    for (OvLocaleImpl const* copy : {&direct, &foreign}) {
        EXPECT_TRUE(*copy == *source);
        EXPECT_EQ(copy->getModifier(OvLocale::time), "@m2");
        EXPECT_EQ(copy->terminal_encoding(), "ISO-8859-15");
    }
}

TEST(LocalePublish, EarlierReferencesSeeTheNewDataAndOldTextStays) {
    OvLocaleImpl published(nullptr);
    published.set_terminal_encoding("US-ASCII");
    std::string const& old_terminal = published.terminal_encoding();
    published.publish(*distinct_locale());
    EXPECT_TRUE(published == *distinct_locale());
    EXPECT_EQ(published.getModifier(OvLocale::time), "@m2");
    EXPECT_EQ(old_terminal, "US-ASCII");
}

TEST(LocaleNames, LanguageAndRegionComeFromTheCategoryName) {
    auto const expect_parts = [](char const* name, char const* language, char const* region) {
        OvLocaleImpl locale(nullptr);
        locale.set_category("xx", "", OvLocale::ctype);
        locale.set_category(name, "euro", OvLocale::monetary);
        EXPECT_EQ(locale.getLanguage(OvLocale::monetary), language) << name;
        EXPECT_EQ(locale.getRegion(OvLocale::monetary), region) << name;
    };
    expect_parts("de_DE", "de", "DE");
    expect_parts("sr-Latn_RS", "sr-Latn", "RS");
    expect_parts("zh_Hant", "zh-Hant", "");
    expect_parts("en_US_POSIX", "en", "US");
    expect_parts("es_419", "es", "419");
    expect_parts("C", "", "");
    expect_parts("", "", "");
}

// Optional data types have the same two unnamed values, refused as a bad argument.
TEST(LocaleNames, OutOfRangeCategoryIsDataNotFound) {
    OvLocaleImpl locale(nullptr);
    // 6 and 7 are values of the enumeration without a name; anything further is undefined.
    for (int c : {category_count, category_count + 1}) {
        SCOPED_TRACE(c);
        EXPECT_THROW(locale.getLocaleName(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getLanguage(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getRegion(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getModifier(category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.set_category("de_DE", "", category(c)), OvLcDataNotFound);
        EXPECT_THROW(locale.getOptData(static_cast<OvLcOptDataCtx::LcOptDataType>(c)),
                     fl::i18n::OvLcInvLcArgument);
    }
}

}  // namespace
