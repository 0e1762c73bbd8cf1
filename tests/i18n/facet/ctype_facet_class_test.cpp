#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <vector>

using facet_test::ctype_of;
using fl::i18n::ustring;
using base = std::ctype_base;

namespace {

class CtypeFacetClasses : public ::testing::Test {
protected:
    std::unique_ptr<fl::i18n::OvLocaleImpl> ov = facet_test::locale_with_encoding("UTF-8");
    std::locale locale = facet_test::char16_locale(*ov);
    std::ctype<char16_t> const& ctype = ctype_of(locale);
};

TEST_F(CtypeFacetClasses, EachStandardBitStandsForItsClass) {
    struct {
        base::mask m;
        char16_t c;
        bool expected;
        char const* why;
    } const cases[] = {
        {base::upper, u'A', true, "upper"},
        {base::upper, u'a', false, "upper of lower"},
        {base::lower, u'a', true, "lower"},
        {base::lower, 0x00C9, false, "lower of capital E acute"},
        {base::alpha, 0x00E9, true, "alpha beyond ASCII"},
        {base::digit, 0x0663, true, "Arabic-Indic digit"},
        {base::xdigit, u'f', true, "xdigit"},
        {base::xdigit, u'g', false, "xdigit of g"},
        {base::space, 0x3000, true, "ideographic space"},
        {base::print, u' ', true, "print of the blank"},
        {base::cntrl, u'\t', true, "control"},
        {base::punct, u'+', true, "math symbols are punct"},
        {base::punct, 0x00A9, false, "other symbols are not"},
        {base::graph, 0xE000, true, "graph compound goes by u_isgraph"},
        {base::graph, u' ', false, "graph of the blank"},
        {base::alnum, 0x0663, true, "alnum compound"},
        {base::alnum, u'-', false, "alnum of a dash"},
        {base::blank, u' ', false, "blank has no class of its own"},
        {base::alpha, 0xD801, false, "a surrogate unit is classified alone"},
        {base::print, 0xD801, false, "a lone surrogate is not printable"},
        {0, u'A', false, "empty mask"},
    };
    for (auto const& test : cases) {
        EXPECT_EQ(ctype.is(test.m, test.c), test.expected) << test.why;
    }
}

TEST_F(CtypeFacetClasses, RangeMasksJoinPairsAndNeverSetPrint) {
    ustring const text = u"A1 +\U00010400\xD801z\t\u00A9";
    std::vector<base::mask> const expected = {
        base::alpha | base::upper | base::xdigit,
        base::digit | base::xdigit,
        base::space,
        base::punct,
        base::alpha | base::upper,  // both halves of U+10400
        base::alpha | base::upper,
        0,  // a high surrogate before a letter stands alone
        base::alpha | base::lower,
        base::cntrl | base::space,
        0,  // an other symbol is not punct
    };
    std::vector<base::mask> masks(text.size(), 0xFFFF);
    EXPECT_EQ(ctype.is(text.data(), text.data() + text.size(), masks.data()),
              text.data() + text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        EXPECT_EQ(masks[i], expected[i]) << "position " << i;
        EXPECT_EQ(masks[i] & base::print, 0) << "position " << i;
    }
    EXPECT_TRUE(ctype.is(base::print, u'A'));
}

TEST_F(CtypeFacetClasses, ScanningTranslatesTheMaskAndWalksLikeScan) {
    struct {
        ustring text;
        base::mask m;
        bool inside;
        std::ptrdiff_t hit;
        char const* why;
    } const cases[] = {
        {u"ab1", base::digit, true, 2, "first digit"},
        {u"ab1", base::alpha, false, 2, "first non-letter"},
        {u"abC1", base::upper | base::digit, true, 2, "union of classes"},
        {u"abc", base::digit, true, 3, "none gives hi"},
        {u"\U00010400a", base::alpha, true, 2, "pair before a letter tested half by half"},
        {u"\xD801"
         u"1\xDC00x",
         base::digit, true, 4, "join at distance two skips a digit"},
        {u"\t ", base::blank, true, 2, "blank alone finds nothing"},
    };
    for (auto const& test : cases) {
        char16_t const* lo = test.text.data();
        char16_t const* hi = lo + test.text.size();
        char16_t const* found =
            test.inside ? ctype.scan_is(test.m, lo, hi) : ctype.scan_not(test.m, lo, hi);
        EXPECT_EQ(found - lo, test.hit) << test.why;
    }
}

TEST_F(CtypeFacetClasses, CaseMappingOfUnitsAndRanges) {
    EXPECT_EQ(ctype.toupper(u'a'), u'A');
    EXPECT_EQ(ctype.toupper(char16_t(0x00E9)), 0x00C9);
    EXPECT_EQ(ctype.tolower(u'Q'), u'q');
    EXPECT_EQ(ctype.toupper(char16_t(0xD801)), 0xD801);

    struct {
        ustring text;
        bool upper;
        ustring expected;
    } const cases[] = {
        {u"a\U00010428b", true, u"A\U00010400B"},   // Deseret small to capital, as a pair
        {u"A\U00010400B", false, u"a\U00010428b"},  // and back
        {u"x\xD801", true, u"X\xD801"},             // lone high surrogate at the end
        {u"\xDC28y", true, u"\xDC28Y"},             // lone low surrogate
        {u"\u00DFa", true,
         u"\u00DF"
         u"A"},  // no one-unit capital of sharp s
    };
    for (auto const& test : cases) {
        ustring text = test.text;
        char16_t* lo = &text[0];
        char16_t const* hi = lo + text.size();
        EXPECT_EQ(test.upper ? ctype.toupper(lo, hi) : ctype.tolower(lo, hi), hi);
        EXPECT_EQ(text, test.expected);
    }
}

}  // namespace
