#include <fl/i18n.hpp>

#include <gtest/gtest.h>

namespace lc = fl::i18n::lcctype;
using namespace fl::i18n;  // the tags

namespace {

// The two-call protocol, as callers use it.
template <class Tag>
ustring transformed(ustring const& source, Tag const& tag) {
    ustring out(lc::transform(nullptr, 0, source.data(), source.size(), tag), u'\0');
    lc::transform(&out[0], out.size(), source.data(), source.size(), tag);
    return out;
}

TEST(Transform, SpecialCasingOfTheRootLocale) {
    EXPECT_EQ(transformed(u"stra\u00DFe", to_upper()), u"STRASSE");
    EXPECT_EQ(transformed(u"\u039F\u0394\u039F\u03A3 A", to_lower()),
              u"\u03BF\u03B4\u03BF\u03C2 a");
}

// One text tells the four forms apart: the ligature is kept by the canonical forms only, and
// the accent is joined by the composing forms only.
TEST(Transform, EachNormalFormItsOwn) {
    ustring const text = u"\uFB01e\u0301";
    EXPECT_EQ(transformed(text, to_nfc()), u"\uFB01\u00E9");
    EXPECT_EQ(transformed(text, to_nfd()), u"\uFB01e\u0301");
    EXPECT_EQ(transformed(text, to_nfkc()), u"fi\u00E9");
    EXPECT_EQ(transformed(text, to_nfkd()), u"fie\u0301");
    EXPECT_EQ(transformed(u"\u00E9", to_nfd()), u"e\u0301");
}

TEST(Transform, LocaleFormsFollowTheCtypeCategory) {
    auto const turkish = OvLocale::createLocale("tr_TR");
    auto const lithuanian = OvLocale::createLocale("lt_LT");
    EXPECT_EQ(transformed(u"i", to_upper_locale(*turkish)), u"\u0130");
    EXPECT_EQ(transformed(u"I", to_lower_locale(*turkish)), u"\u0131");
    EXPECT_EQ(transformed(u"I\u0300", to_lower_locale(*lithuanian)), u"i\u0307\u0300");
    // Only the ctype category counts.
    auto const mixed = OvLocale::createLocale("en_US", OvLocale::ctype, "tr_TR");
    EXPECT_EQ(transformed(u"i", to_upper_locale(*mixed)), u"\u0130");
}

TEST(Transform, BufferProtocol) {
    ustring const sharp = u"\u00DF";
    char16_t buffer[4] = {u'x', u'x', u'x', u'x'};
    EXPECT_EQ(lc::transform(nullptr, 99, sharp.data(), 1, to_upper()), 2U);
    EXPECT_EQ(lc::transform(buffer, 1, sharp.data(), 1, to_upper()), 2U);  // short: no failure
    EXPECT_EQ(lc::transform(buffer, 2, sharp.data(), 1, to_upper()), 2U);
    EXPECT_EQ(ustring(buffer, 3), u"SSx");  // exact fit: no terminator
    EXPECT_EQ(lc::transform(buffer, 4, sharp.data(), 1, to_upper()), 2U);
    EXPECT_EQ(buffer[2], u'\0');
    EXPECT_EQ(lc::transform(buffer, 4, nullptr, 5, to_nfd()), 0U);
    EXPECT_EQ(buffer[0], u'S');
}

TEST(Transform, SizesAboveTheLimitFailBeforeIcu) {
    char16_t buffer[4] = {};
    char16_t const source[] = u"ab";
    EXPECT_THROW(lc::transform(buffer, 4, source, 0x40000000, to_lower()), CtypeSizeTooLarge);
    EXPECT_THROW(lc::transform(buffer, 0x40000000, source, 2, to_nfc()), CtypeSizeTooLarge);
    EXPECT_EQ(lc::transform(nullptr, 0x40000000, source, 2, to_nfc()), 2U);
}

}  // namespace
