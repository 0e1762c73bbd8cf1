#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using fl::i18n::OvLcInvLcArgument;
using fl::i18n::OvLcInvLcName;
using fl::i18n::OvLocale;

struct name_case {
    char const* name;
    char const* ctype;     // name and modifier
    char const* messages;  // name and modifier
    char const* encoding;
};

class CreateFromName : public testing::TestWithParam<name_case> {};

TEST_P(CreateFromName, ResolvesNameModifierAndEncoding) {
    name_case const& c = GetParam();
    auto const locale = OvLocale::createLocale(c.name);
    ASSERT_TRUE(locale);
    EXPECT_EQ(locale->getLocaleName(OvLocale::ctype) + locale->getModifier(OvLocale::ctype),
              c.ctype);
    EXPECT_EQ(locale->getLocaleName(OvLocale::messages) + locale->getModifier(OvLocale::messages),
              c.messages);
    EXPECT_EQ(locale->getEncoding(), c.encoding);
    // A created locale has no terminal encoding of its own.
    EXPECT_EQ(boost::get<std::string>(locale->getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
              c.encoding);
}

INSTANTIATE_TEST_SUITE_P(
    Names, CreateFromName,
    testing::Values(name_case{"en_US_POSIX", "en_US_POSIX", "en_US", "US-ASCII"},
                    name_case{"C", "en_US_POSIX", "en_US", "US-ASCII"},
                    name_case{"de_DE", "de_DE", "de_DE", "ISO-8859-15"},
                    name_case{"de_DE.UTF-8", "de_DE", "de_DE", "UTF-8"},
                    name_case{"de_DE.ISO-8859-15@euro", "de_DE@euro", "de_DE@euro", "ISO-8859-15"},
                    name_case{"de_DE.iso885915@euro", "de_DE@euro", "de_DE@euro", "ISO-8859-15"},
                    name_case{"de_DE@euro@x", "de_DE@euro@x", "de_DE@euro@x", "ISO-8859-15"},
                    name_case{"ja_JP", "ja_JP", "ja_JP", "Shift_JIS"},
                    name_case{"ja_JP.eucJP", "ja_JP", "ja_JP", "EUC-JP"},
                    name_case{"ja_JP.SJIS", "ja_JP", "ja_JP", "Shift_JIS"},
                    name_case{"iw_IL", "he_IL", "he_IL", "ISO-8859-8"},
                    name_case{"zh-Hant", "zh_TW", "zh_TW", "Big5"},
                    name_case{"sr-Latn_RS.UTF-8", "sr-Latn_RS", "sr-Latn_RS", "UTF-8"},
                    name_case{"en.UTF-8", "en_US", "en_US", "UTF-8"}));

struct bad_name_case {
    char const* name;
    char const* detail;
};

class CreateFromBadName : public testing::TestWithParam<bad_name_case> {};

TEST_P(CreateFromBadName, ThrowsWithTheOffendingText) {
    try {
        OvLocale::createLocale(GetParam().name);
        FAIL() << GetParam().name;
    } catch (OvLcInvLcName const& e) {
        EXPECT_EQ(e.getDetail(), GetParam().detail);
        EXPECT_EQ(e.getCode(), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, CreateFromBadName,
                         testing::Values(bad_name_case{"de_DE.NOSUCH", "NOSUCH"},
                                         bad_name_case{"xx-Yyyy_ZZ", "xx-Yyyy_ZZ"},
                                         bad_name_case{"xx_YY.UTF-8@euro", "xx_YY"},
                                         bad_name_case{"english", "english"},
                                         // ICU knows it, the database doesn't
                                         bad_name_case{"de_DE.ISO-2022-JP", "ISO-2022-JP"}));

TEST(CreateLocale, EmptyNameIsAnInvalidArgument) {
    EXPECT_THROW(OvLocale::createLocale(""), OvLcInvLcArgument);
    EXPECT_THROW(OvLocale::createLocale("de_DE", OvLocale::time, ""), OvLcInvLcArgument);
}

TEST(CreateLocale, CategoryChangesKeepTheEncoding) {
    auto const locale = OvLocale::createLocale("de_DE.UTF-8", OvLocale::time, "fr_FR.ISO-8859-1@x");
    EXPECT_EQ(locale->getLocaleName(OvLocale::time), "fr_FR");
    EXPECT_EQ(locale->getModifier(OvLocale::time), "@x");
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

TEST(CreateLocale, CategoryFailuresReportTheWholeName) {
    try {
        OvLocale::createLocale("de_DE", OvLocale::time, "qq_QQ.UTF-8");
        FAIL();
    } catch (OvLcInvLcName const& e) {
        EXPECT_EQ(e.getDetail(), "qq_QQ.UTF-8");
    }
    try {
        OvLocale::createLocale(*OvLocale::createLocale("de_DE"), OvLocale::time, "fr_FR.BOGUS");
        FAIL();
    } catch (OvLcInvLcName const& e) {
        EXPECT_EQ(e.getDetail(), "BOGUS");
    }
}

TEST(CreateLocale, CopiesAndCategoryFromAnotherLocale) {
    auto const de = OvLocale::createLocale("de_DE.UTF-8@euro");
    auto const copy = OvLocale::createLocale(*de);
    EXPECT_TRUE(*copy == *de);
    auto const ja = OvLocale::createLocale("ja_JP");
    auto const mixed = OvLocale::createLocale(*de, OvLocale::messages, *ja);
    EXPECT_EQ(mixed->getLocaleName(OvLocale::messages), "ja_JP");
    EXPECT_EQ(mixed->getModifier(OvLocale::messages), "");
    EXPECT_EQ(mixed->getModifier(OvLocale::ctype), "@euro");
    EXPECT_EQ(mixed->getEncoding(), "UTF-8");
    auto const back = OvLocale::createLocale(*mixed, OvLocale::messages, *de);
    EXPECT_TRUE(*back == *de);
}

TEST(CreateLocale, WithCForNumeric) {
    auto const locale = OvLocale::createLocaleWithCForNumeric("fr_FR@x");
    EXPECT_EQ(locale->getLocaleName(OvLocale::numeric), "en_US_POSIX");
    EXPECT_EQ(locale->getModifier(OvLocale::numeric), "");
    EXPECT_EQ(locale->getLocaleName(OvLocale::monetary), "fr_FR");
    EXPECT_EQ(locale->getModifier(OvLocale::monetary), "@x");
}

TEST(CreateLocale, JvmEncodingComesFromTheDatabase) {
    auto const ja = OvLocale::createLocale("ja_JP");
    EXPECT_EQ(boost::get<std::string>(ja->getOptData(fl::i18n::OvLcOptDataCtx::jvmencoding)),
              "MS932");
    auto const utf8 = OvLocale::createLocale("de_DE.UTF-8");
    EXPECT_EQ(boost::get<std::string>(utf8->getOptData(fl::i18n::OvLcOptDataCtx::jvmencoding)),
              "UTF-8");
}

}  // namespace
