#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <memory>
#include <vector>

using fl::i18n::ustring;
using base = std::ctype_base;

namespace {

std::ctype<char16_t> const& ctype() {
    static facet_test::char16_locale const locale("UTF-8");
    return locale.ctype();
}

TEST(CtypeFacet, EachStandardBitStandsForItsClass) {
    struct {
        base::mask m;
        char16_t c;
        bool expected;
    } const cases[] = {
        {base::upper, u'A', true},    {base::upper, u'a', false},  {base::lower, u'a', true},
        {base::alpha, 0x00E9, true},  {base::digit, 0x0663, true}, {base::xdigit, u'f', true},
        {base::xdigit, u'g', false},  {base::space, 0x3000, true}, {base::print, u' ', true},
        {base::cntrl, u'\t', true},   {base::punct, u'+', true},   {base::punct, 0x00A9, false},
        {base::graph, 0xE000, true},  {base::graph, u' ', false},  {base::alnum, 0x0663, true},
        {base::blank, u' ', false},    // blank has no class of its own
        {base::alpha, 0xD801, false},  // a surrogate unit is classified alone
    };
    for (auto const& test : cases) {
        EXPECT_EQ(ctype().is(test.m, test.c), test.expected)
            << "mask " << std::hex << test.m << " of " << int(test.c);
    }
}

// The mask of each code point is held to ICU over all of them elsewhere; this is the walk.
TEST(CtypeFacet, RangeMasksJoinPairsAndNeverSetPrint) {
    ustring const text = u"A\U00010400\xD801z";
    std::vector<base::mask> const expected = {
        base::alpha | base::upper | base::xdigit,
        base::alpha | base::upper,  // both halves of U+10400
        base::alpha | base::upper,
        0,  // a high surrogate before a letter stands alone
        base::alpha | base::lower,
    };
    std::vector<base::mask> masks(text.size(), 0xFFFF);
    char16_t const* end = text.data() + text.size();
    EXPECT_EQ(ctype().is(text.data(), end, masks.data()), end);
    EXPECT_EQ(masks, expected);
    EXPECT_TRUE(ctype().is(base::print, u'A'));
}

// How the walk treats surrogates is the scan's own, tested there; the facet only bounds it.
TEST(CtypeFacet, ScanningTranslatesTheMask) {
    struct {
        ustring text;
        base::mask m;
        bool inside;
        std::ptrdiff_t hit;
    } const cases[] = {
        {u"abC1", base::upper | base::digit, true, 2},
        {u"ab1", base::alpha, false, 2},
        {u"\t ", base::blank, true, 2},  // blank has no class: nothing matches
    };
    for (auto const& test : cases) {
        char16_t const* lo = test.text.data();
        char16_t const* hi = lo + test.text.size();
        auto const found =
            test.inside ? ctype().scan_is(test.m, lo, hi) : ctype().scan_not(test.m, lo, hi);
        EXPECT_EQ(found - lo, test.hit) << "mask " << std::hex << test.m;
    }
}

// A high surrogate at the end must not make the scan read past hi (a heap buffer, for
// AddressSanitizer), nor return past hi when the units behind the range would form a pair.
TEST(CtypeFacet, ScanningStaysInsideItsRange) {
    auto const tail = std::make_unique<char16_t[]>(2);
    tail[0] = u'a';
    tail[1] = 0xD801;
    EXPECT_EQ(ctype().scan_is(base::upper, tail.get(), tail.get() + 2), tail.get() + 2);
    ustring const padded = u"a\xD801\x0041\xDC00";
    char16_t const* lo = padded.data();
    EXPECT_EQ(ctype().scan_is(base::cntrl, lo, lo + 2), lo + 2);
    EXPECT_EQ(ctype().scan_not(base::lower, lo, lo + 2), lo + 1);
}

TEST(CtypeFacet, CaseMappingKeepsPairsTogether) {
    EXPECT_EQ(ctype().toupper(char16_t(0x00E9)), 0x00C9);
    EXPECT_EQ(ctype().tolower(char16_t(0xD801)), 0xD801);
    struct {
        ustring text;
        bool upper;
        ustring expected;
    } const cases[] = {
        {u"a\U00010428b", true, u"A\U00010400B"},    // Deseret small to capital, as a pair
        {u"A\U00010400B", false, u"a\U00010428b"},   // and back
        {u"\xDC28x\xD801", true, u"\xDC28X\xD801"},  // lone surrogates stay
    };
    for (auto const& test : cases) {
        ustring text = test.text;
        char16_t* lo = &text[0];
        char16_t const* hi = lo + text.size();
        EXPECT_EQ(test.upper ? ctype().toupper(lo, hi) : ctype().tolower(lo, hi), hi);
        EXPECT_EQ(text, test.expected);
    }
}

}  // namespace
