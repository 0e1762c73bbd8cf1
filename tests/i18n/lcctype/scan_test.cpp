#include <fl/i18n/lcctype/classify.hpp>
#include <fl/i18n/lcctype/scan.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace lc = fl::i18n::lcctype;
namespace pc = fl::i18n::lcctype::posix_class;
using fl::i18n::is_not_posix;
using fl::i18n::is_posix;
using fl::i18n::ustring;

namespace {

struct scan_case {
    char const* why;
    ustring text;  // the range is its first `range` units; the rest keeps reads in bounds
    std::size_t range;
    unsigned int mask;
    bool inside;         // is_posix when true
    std::ptrdiff_t hit;  // index of the answer, which may lie beyond the range
};

ustring const pad(2, u'\0');

scan_case const scan_cases[] = {
    {"digit after two letters", u"ab1", 3, pc::digit, true, 2},
    {"first non-letter", u"ab1", 3, pc::alpha, false, 2},
    {"no hit gives last", u"abc", 3, pc::digit, true, 3},
    {"empty range gives last", u"abc", 0, pc::digit, true, 0},
    {"mask 0 never hits", u"a1 ", 3, 0, true, 3},
    {"mask 0 misses at once", u"a1 ", 3, 0, false, 0},
    {"union of single classes", u"abC1", 4, pc::digit | pc::upper, true, 2},
    {"range end stops the walk", u"ab1", 2, pc::digit, true, 2},
    {"space", u"a\u3000b", 3, pc::space, true, 1},
    {"control", u"a\tb", 3, pc::cntrl, true, 1},
    {"print includes the blank", u"\t b", 3, pc::print, true, 1},
    {"graph excludes the blank", u"\t b", 3, pc::graph, true, 2},
    {"graph compound accepts a private-use character", u" \uE000", 2, pc::graph, true, 1},
    {"alpha and punct alone reject a private-use character", u" \uE000", 2, pc::alpha | pc::punct,
     true, 2},
    {"punct holds math symbols", u"a+", 2, pc::punct, true, 1},
    {"punct leaves out other symbols", u"a\u00A9", 2, pc::punct, true, 2},
    {"xdigit by digit value", u"gF", 2, pc::xdigit, true, 1},
    {"xdigit of a fullwidth letter", u"g\uFF21", 2, pc::xdigit, true, 1},
    {"lower", u"AbC", 3, pc::lower, true, 1},
    {"upper", u"aBc", 3, pc::upper, true, 1},
    {"alnum compound", u"-\u0663", 2, pc::alnum, true, 1},
    {"supplementary letter joined with a low surrogate two on", u"\U00010400\xDC00", 3, pc::alpha,
     true, 0},
    {"ordinary pair followed by a letter is tested half by half", u"\U00010400a", 3, pc::alpha,
     true, 2},
    {"not-alpha sees each half of an unjoined pair", u"\U00010400a", 3, pc::alpha, false, 0},
    {"high surrogate joined with the unit between",
     u"\xD801"
     u"A\xDC00",
     3, pc::print, true, 0},
    {"unjoined high surrogate lets the next unit hit",
     u"\xD801"
     u"AB",
     3, pc::print, true, 1},
    {"a join skips the unit between",
     u"\xD801"
     u"1\xDC00x",
     4, pc::digit, true, 4},
    {"a join stepping over last walks on",
     u"\xD801x\xDC00"
     u"1",
     1, pc::digit, true, 3},
    {"lone high surrogate at the end", u"a\xD801", 2, pc::alpha | pc::digit, false, 1},
};

struct forms {
    std::ptrdiff_t pointer;
    std::ptrdiff_t const_pointer;
    std::ptrdiff_t iterator;
    std::ptrdiff_t const_iterator;
};

template <class Sense>
forms run_all_forms(scan_case const& test, Sense sense) {
    ustring text = test.text + pad;
    ustring const& const_text = text;
    char16_t* data = &text[0];
    char16_t const* const_data = const_text.data();
    forms result;
    result.pointer = lc::scan(test.mask, data, data + test.range, sense) - data;
    result.const_pointer =
        lc::scan(test.mask, const_data, const_data + test.range, sense) - const_data;
    result.iterator =
        lc::scan(test.mask, text.begin(), text.begin() + test.range, sense) - text.begin();
    result.const_iterator =
        lc::scan(test.mask, const_text.begin(), const_text.begin() + test.range, sense) -
        const_text.begin();
    return result;
}

TEST(Scan, WalksAndClassifiesAlikeInEveryForm) {
    for (auto const& test : scan_cases) {
        forms const got =
            test.inside ? run_all_forms(test, is_posix()) : run_all_forms(test, is_not_posix());
        EXPECT_EQ(got.pointer, test.hit) << test.why;
        EXPECT_EQ(got.const_pointer, test.hit) << test.why;
        EXPECT_EQ(got.iterator, test.hit) << test.why;
        EXPECT_EQ(got.const_iterator, test.hit) << test.why;
    }
}

TEST(Scan, NullPointersGiveLast) {
    char16_t text[] = u"a1";
    char16_t const* const_text = text;
    EXPECT_EQ(lc::scan(pc::digit, nullptr, text + 2, is_posix()), text + 2);
    EXPECT_EQ(lc::scan(pc::digit, text, nullptr, is_posix()), nullptr);
    EXPECT_EQ(lc::scan(pc::digit, nullptr, const_text + 2, is_not_posix()), const_text + 2);
    EXPECT_EQ(lc::scan(pc::digit, const_text, nullptr, is_not_posix()), nullptr);
}

TEST(Scan, PunctuationClassIsWiderThanIspunctAndNarrowerThanIsgraph) {
    char32_t const symbols[] = {U'+', U'$', U'^', 0x00A9};
    for (char32_t c : symbols) {
        ustring const text(1, char16_t(c));
        bool const scan_punct =
            lc::scan(pc::punct, text.begin(), text.end(), is_posix()) == text.begin();
        EXPECT_FALSE(lc::ispunct(c));
        EXPECT_TRUE(lc::isgraph(c));
        EXPECT_EQ(scan_punct, c != 0x00A9) << std::hex << std::uint32_t(c);
    }
}

}  // namespace
