#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include "support/expect_thrown.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/ustring.hpp>

#include <unicode/ucnv.h>

#include <string>

using facet_test::char16_locale;
using fl::i18n::ustring;

namespace {

// One character each way. What the encoding cannot take becomes its substitution, never the
// caller's default.
TEST(CtypeFacetConversion, SingleCharactersGoThroughTheEncoding) {
    struct {
        char const* encoding;
        char byte;
        char16_t widened;
        char16_t unit;
        char narrowed;
    } const cases[] = {
        {"US-ASCII", 'A', u'A', u'A', 'A'},
        {"US-ASCII", '\xE9', 0xFFFD, 0x00E9, '\x1A'},
        {"US-ASCII", '\x80', 0xFFFD, 0xD801, '\x1A'},
        {"ISO-8859-1", '\xE9', 0x00E9, 0x00E9, '\xE9'},
        {"windows-1252", '\x80', 0x20AC, 0x20AC, '\x80'},
        {"UTF-8", '\xC3', 0xFFFD, 0x00E9, '\xC3'},  // a cut sequence; the first byte of two
        {"Shift_JIS", '\x82', 0x001A, 0x3042, '\x82'},
    };
    for (auto const& test : cases) {
        char16_locale const loc(test.encoding);
        EXPECT_EQ(loc.ctype().widen(test.byte), test.widened) << test.encoding;
        EXPECT_EQ(loc.ctype().narrow(test.unit, '?'), test.narrowed) << test.encoding;
    }
}

// The destination holds one unit per source unit; a longer result is cut, never overrun.
TEST(CtypeFacetConversion, RangesConvertWithinTheCallersBuffer) {
    struct {
        char const* encoding;
        std::string bytes;
        ustring units;
    } const cases[] = {
        {"ISO-8859-1", "caf\xE9", u"caf\u00E9"},
        {"UTF-8", "h\xC3\xA9!", u"h\u00E9!#"},
        {"US-ASCII", "a\xFF", u"a\uFFFD"},
        {"UTF-8", "", u""},
    };
    for (auto const& test : cases) {
        char16_locale const loc(test.encoding);
        ustring to(test.bytes.size(), u'#');
        char const* hi = test.bytes.data() + test.bytes.size();
        EXPECT_EQ(loc.ctype().widen(test.bytes.data(), hi, &to[0]), hi);
        EXPECT_EQ(to, test.units) << test.encoding;
    }
    struct {
        char const* encoding;
        ustring units;
        std::string bytes;
    } const narrow_cases[] = {
        {"ISO-8859-1", u"caf\u00E9", "caf\xE9#"},
        {"US-ASCII", u"a\u00E9", "a\x1A#"},
        {"UTF-8", u"h\u00E9", "h\xC3#"},
    };
    for (auto const& test : narrow_cases) {
        char16_locale const loc(test.encoding);
        std::string to(test.units.size() + 1, '#');
        char16_t const* hi = test.units.data() + test.units.size();
        EXPECT_EQ(loc.ctype().narrow(test.units.data(), hi, '?', &to[0]), hi);
        EXPECT_EQ(to, test.bytes) << test.encoding;
    }
}

TEST(CtypeFacetConversion, ABadEncodingFailsAtFirstUseNotAtConstruction) {
    char16_locale const loc("no-such-encoding");
    char const bytes[] = "ab";
    char16_t const units[] = u"ab";
    char16_t wide[2];
    char narrow[2];
    auto const expect_refused = [](auto const& call) {
        expect_thrown<fl::i18n::CvtInvalidEncodingName>(
            call, [](auto const& e) { EXPECT_EQ(e.get_encoding_name(), "no-such-encoding"); });
    };
    expect_refused([&] { loc.ctype().widen('a'); });
    expect_refused([&] { loc.ctype().narrow(u'a', '?'); });
    expect_refused([&] { loc.ctype().widen(bytes, bytes + 2, wide); });
    expect_refused([&] { loc.ctype().narrow(units, units + 2, '?', narrow); });
}

TEST(CtypeFacetConversion, TheEncodingIsTakenAtConstruction) {
    char16_locale const loc("ISO-8859-1");
    loc.ov->set_encoding("US-ASCII");
    EXPECT_EQ(loc.ctype().widen('\xE9'), 0x00E9);
}

}  // namespace

namespace {

// The table made with the facet answers, byte by byte, what a fresh ICU converter answers, and
// a range in a single-byte encoding widens as its bytes do one by one.
TEST(CtypeFacetConversion, EveryByteWidensAsIcuDoes) {
    for (char const* encoding :
         {"ISO-8859-15", "windows-1252", "US-ASCII", "UTF-8", "Shift_JIS", "EUC-JP"}) {
        char16_locale const loc(encoding);
        UErrorCode error = U_ZERO_ERROR;
        UConverter* const icu = ucnv_open(encoding, &error);
        ASSERT_LE(error, U_ZERO_ERROR) << encoding;
        std::string bytes;
        ustring one_by_one;
        for (int b = 0; b < 256; ++b) {
            char const c = static_cast<char>(b);
            UChar units[16];
            error = U_ZERO_ERROR;
            int32_t const length = ucnv_toUChars(icu, units, 16, &c, 1, &error);
            char16_t const expected = length > 0 ? units[0] : u'\0';
            EXPECT_EQ(loc.ctype().widen(c), expected) << encoding << " byte " << b;
            bytes += c;
            one_by_one += expected;
        }
        ucnv_close(icu);
        if (std::string(encoding).find("8859") != std::string::npos ||
            std::string(encoding) == "windows-1252") {
            ustring ranged(256, u'#');
            loc.ctype().widen(bytes.data(), bytes.data() + 256, &ranged[0]);
            EXPECT_EQ(ranged, one_by_one) << encoding;
        }
    }
}

}  // namespace
