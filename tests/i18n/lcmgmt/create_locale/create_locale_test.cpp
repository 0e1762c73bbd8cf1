#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include "support/expect_thrown.hpp"

#include <functional>
#include <string>
#include <vector>

namespace {

using fl::i18n::OvLcInvLcArgument;
using fl::i18n::OvLcInvLcName;
using fl::i18n::OvLocale;

std::string name_and_modifier(OvLocale const& locale, OvLocale::LcCategory category) {
    return locale.getLocaleName(category) + locale.getModifier(category);
}

TEST(CreateLocale, ResolvesNameModifierAndEncoding) {
    struct {
        char const* name;
        char const* ctype;     // name and modifier
        char const* messages;  // name and modifier
        char const* encoding;
    } const cases[] = {
        {"C", "en_US_POSIX", "en_US", "US-ASCII"},
        {"de_DE", "de_DE", "de_DE", "ISO-8859-15"},
        {"de_DE.UTF-8", "de_DE", "de_DE", "UTF-8"},
        {"de_DE.ISO-8859-15@euro", "de_DE@euro", "de_DE@euro", "ISO-8859-15"},
        {"de_DE.iso885915@euro", "de_DE@euro", "de_DE@euro", "ISO-8859-15"},
        {"de_DE@euro@x", "de_DE@euro@x", "de_DE@euro@x", "ISO-8859-15"},
        {"ja_JP.eucJP", "ja_JP", "ja_JP", "EUC-JP"},
        {"sr-Latn_RS.UTF-8", "sr-Latn_RS", "sr-Latn_RS", "UTF-8"},
        {"en.UTF-8", "en_US", "en_US", "UTF-8"},
    };
    for (auto const& c : cases) {
        auto const locale = OvLocale::createLocale(c.name);
        ASSERT_TRUE(locale) << c.name;
        EXPECT_EQ(name_and_modifier(*locale, OvLocale::ctype), c.ctype) << c.name;
        EXPECT_EQ(name_and_modifier(*locale, OvLocale::messages), c.messages) << c.name;
        EXPECT_EQ(locale->getEncoding(), c.encoding) << c.name;
        // A created locale has no terminal encoding of its own.
        EXPECT_EQ(
            boost::get<std::string>(locale->getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
            c.encoding)
            << c.name;
    }
}

// The detail names the offending part, or the whole name when a category is being replaced.
TEST(CreateLocale, BadNamesThrowWithTheOffendingText) {
    auto const de = OvLocale::createLocale("de_DE");
    struct {
        std::function<void()> create;
        char const* detail;
    } const cases[] = {
        {[] { OvLocale::createLocale("de_DE.NOSUCH"); }, "NOSUCH"},
        {[] { OvLocale::createLocale("xx-Yyyy_ZZ"); }, "xx-Yyyy_ZZ"},
        {[] { OvLocale::createLocale("xx_YY.UTF-8@euro"); }, "xx_YY"},
        {[] { OvLocale::createLocale("english"); }, "english"},
        // ICU knows it, the database doesn't
        {[] { OvLocale::createLocale("de_DE.ISO-2022-JP"); }, "ISO-2022-JP"},
        {[] { OvLocale::createLocale("de_DE", OvLocale::time, "qq_QQ.UTF-8"); }, "qq_QQ.UTF-8"},
        {[&de] { OvLocale::createLocale(*de, OvLocale::time, "fr_FR.BOGUS"); }, "BOGUS"},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c.detail);
        expect_thrown<OvLcInvLcName>(c.create,
                                     [&](auto const& e) { EXPECT_EQ(e.getDetail(), c.detail); });
    }
    EXPECT_THROW(OvLocale::createLocale(""), OvLcInvLcArgument);
    EXPECT_THROW(OvLocale::createLocale("de_DE", OvLocale::time, ""), OvLcInvLcArgument);
}

TEST(CreateLocale, CategoryChangesKeepTheEncoding) {
    auto const locale = OvLocale::createLocale("de_DE.UTF-8", OvLocale::time, "fr_FR.ISO-8859-1@x");
    EXPECT_EQ(name_and_modifier(*locale, OvLocale::time), "fr_FR@x");
    EXPECT_EQ(locale->getLocaleName(OvLocale::ctype), "de_DE");
    EXPECT_EQ(locale->getEncoding(), "UTF-8");

    std::vector<OvLocale::CategoryContext> const changes{{OvLocale::messages, "en_US_POSIX"},
                                                         {OvLocale::collate, "sv"}};
    auto const changed = OvLocale::createLocale(*locale, changes);
    EXPECT_EQ(changed->getLocaleName(OvLocale::messages), "en_US");
    EXPECT_EQ(changed->getLocaleName(OvLocale::collate), "sv_SE");
    EXPECT_EQ(changed->getLocaleName(OvLocale::time), "fr_FR");
    EXPECT_EQ(changed->getEncoding(), "UTF-8");

    auto const from_name = OvLocale::createLocale("ja_JP", changes);
    EXPECT_EQ(from_name->getLocaleName(OvLocale::collate), "sv_SE");
    EXPECT_EQ(from_name->getEncoding(), "Shift_JIS");
}

TEST(CreateLocale, CopiesAndCategoryFromAnotherLocale) {
    auto const de = OvLocale::createLocale("de_DE.UTF-8@euro");
    EXPECT_TRUE(*OvLocale::createLocale(*de) == *de);
    auto const mixed =
        OvLocale::createLocale(*de, OvLocale::messages, *OvLocale::createLocale("ja_JP"));
    EXPECT_EQ(name_and_modifier(*mixed, OvLocale::messages), "ja_JP");
    EXPECT_EQ(mixed->getModifier(OvLocale::ctype), "@euro");
    EXPECT_EQ(mixed->getEncoding(), "UTF-8");
    EXPECT_TRUE(*OvLocale::createLocale(*mixed, OvLocale::messages, *de) == *de);
}

TEST(CreateLocale, WithCForNumeric) {
    auto const locale = OvLocale::createLocaleWithCForNumeric("fr_FR@x");
    EXPECT_EQ(name_and_modifier(*locale, OvLocale::numeric), "en_US_POSIX");
    EXPECT_EQ(name_and_modifier(*locale, OvLocale::monetary), "fr_FR@x");
}

}  // namespace
