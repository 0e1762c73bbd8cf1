#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

using facet_test::ctype_of;
using fl::i18n::ustring;

namespace {

struct converting_locale {
    explicit converting_locale(std::string const& encoding)
        : ov(facet_test::locale_with_encoding(encoding)), locale(facet_test::char16_locale(*ov)) {}

    std::ctype<char16_t> const& ctype() const { return ctype_of(locale); }

    std::unique_ptr<fl::i18n::OvLocaleImpl> ov;
    std::locale locale;
};

TEST(CtypeFacetConversion, SingleCharactersGoThroughTheEncoding) {
    struct {
        char const* encoding;
        char byte;
        char16_t unit;
        char narrowed;  // what unit narrows to
    } const cases[] = {
        {"US-ASCII", 'A', u'A', 'A'},
        {"ISO-8859-1", '\xE9', 0x00E9, '\xE9'},
        {"windows-1252", '\x80', 0x20AC, '\x80'},
        {"UTF-8", 'z', u'z', 'z'},
    };
    for (auto const& test : cases) {
        converting_locale const loc(test.encoding);
        EXPECT_EQ(loc.ctype().widen(test.byte), test.unit) << test.encoding;
        EXPECT_EQ(loc.ctype().narrow(test.unit, '?'), test.narrowed) << test.encoding;
    }
}

TEST(CtypeFacetConversion, UnconvertibleInputGetsTheSubstituteAndNeverTheDefault) {
    struct {
        char const* encoding;
        char16_t unit;
        char narrowed;
        char byte;
        char16_t widened;
    } const cases[] = {
        {"US-ASCII", 0x00E9, '\x1A', '\xE9', 0xFFFD},
        {"US-ASCII", 0xD801, '\x1A', '\x80', 0xFFFD},
        {"UTF-8", 0x00E9, '\xC3', '\xC3', 0xFFFD},  // first byte only; a cut sequence
        {"Shift_JIS", 0x3042, '\x82', '\x82', 0x001A},
    };
    for (auto const& test : cases) {
        converting_locale const loc(test.encoding);
        EXPECT_EQ(loc.ctype().narrow(test.unit, '?'), test.narrowed) << test.encoding;
        EXPECT_EQ(loc.ctype().widen(test.byte), test.widened) << test.encoding;
    }
}

TEST(CtypeFacetConversion, RangesConvertWithinTheCallersBuffer) {
    struct {
        char const* encoding;
        std::string bytes;
        ustring units;
    } const widen_cases[] = {
        {"ISO-8859-1", "caf\xE9", u"caf\u00E9"},
        {"UTF-8", "h\xC3\xA9!", u"h\u00E9!\u002A"},  // three units; the fourth stays as it was
        {"US-ASCII", "a\xFF", u"a\uFFFD"},
        {"UTF-8", "", u""},
    };
    for (auto const& test : widen_cases) {
        converting_locale const loc(test.encoding);
        ustring to(test.bytes.size(), u'*');
        char const* lo = test.bytes.data();
        char const* hi = lo + test.bytes.size();
        EXPECT_EQ(loc.ctype().widen(lo, hi, &to[0]), hi) << test.encoding;
        EXPECT_EQ(to, test.units) << test.encoding;
    }

    struct {
        char const* encoding;
        ustring units;
        std::string bytes;
    } const narrow_cases[] = {
        {"ISO-8859-1", u"caf\u00E9", "caf\xE9"},
        {"US-ASCII", u"a\u00E9b",
         "a\x1A"
         "b"},
        {"UTF-8", u"h\u00E9", "h\xC3"},  // what fits; the rest of the sequence is cut
        {"UTF-8", u"", ""},
    };
    for (auto const& test : narrow_cases) {
        converting_locale const loc(test.encoding);
        std::string to(test.units.size() + 1, '#');  // one guard byte
        char16_t const* lo = test.units.data();
        char16_t const* hi = lo + test.units.size();
        EXPECT_EQ(loc.ctype().narrow(lo, hi, '?', &to[0]), hi) << test.encoding;
        EXPECT_EQ(to, test.bytes + "#") << test.encoding;
    }
}

TEST(CtypeFacetConversion, ABadEncodingFailsAtFirstUseNotAtConstruction) {
    converting_locale const loc("no-such-encoding");
    auto const& facet = dynamic_cast<fl::i18n::facet::ctype_facet<char16_t> const&>(loc.ctype());
    EXPECT_EQ(facet.encoding_name(), "no-such-encoding");

    char const bytes[] = "ab";
    char16_t const units[] = u"ab";
    char16_t wide[2];
    char narrow[2];
    auto const expect_refused = [](auto const& call) {
        try {
            call();
            ADD_FAILURE() << "no exception";
        } catch (fl::i18n::CvtInvalidEncodingName const& e) {
            EXPECT_EQ(e.get_encoding_name(), "no-such-encoding");
        }
    };
    expect_refused([&] { loc.ctype().widen('a'); });
    expect_refused([&] { loc.ctype().narrow(u'a', '?'); });
    expect_refused([&] { loc.ctype().widen(bytes, bytes + 2, wide); });
    expect_refused([&] { loc.ctype().narrow(units, units + 2, '?', narrow); });
}

TEST(CtypeFacetConversion, TheEncodingIsTakenAtConstruction) {
    auto ov = facet_test::locale_with_encoding("ISO-8859-1");
    std::locale const locale = facet_test::char16_locale(*ov);
    ov->set_encoding("US-ASCII");
    EXPECT_EQ(ctype_of(locale).widen('\xE9'), 0x00E9);
}

}  // namespace
