#include <fl/i18n/lcctype/scan.hpp>

#include <gtest/gtest.h>

#include <cstddef>

namespace lc = fl::i18n::lcctype;
namespace pc = fl::i18n::lcctype::posix_class;
using fl::i18n::is_not_posix;
using fl::i18n::is_posix;
using fl::i18n::ustring;

namespace {

// What each class holds is checked over all code points elsewhere; these cases are about the
// walk, the senses and the four forms.
struct scan_case {
    char const* why;
    ustring text;  // the range is its first `range` units; padding behind keeps reads in bounds
    std::size_t range;
    unsigned int mask;
    bool inside;         // is_posix when true
    std::ptrdiff_t hit;  // may lie beyond the range
};

scan_case const scan_cases[] = {
    {"digit after two letters", u"ab1", 3, pc::digit, true, 2},
    {"first non-letter", u"ab1", 3, pc::alpha, false, 2},
    {"none gives last", u"abc", 3, pc::digit, true, 3},
    {"empty range", u"abc", 0, pc::digit, true, 0},
    {"mask 0 misses at once", u"a1", 2, 0, false, 0},
    {"union of classes", u"abC1", 4, pc::digit | pc::upper, true, 2},
    {"the blank is neither graph nor cntrl", u"\t b", 3, pc::graph | pc::cntrl, false, 1},
    {"pair joined when a low surrogate stands two on", u"\U00010400\xDC00", 3, pc::alpha, true, 0},
    {"ordinary pair then a letter: halves alone", u"\U00010400a", 3, pc::alpha, true, 2},
    {"each half misses alpha", u"\U00010400a", 3, pc::alpha, false, 0},
    {"joined with the unit between",
     u"\xD801"
     u"A\xDC00",
     3, pc::print, true, 0},
    {"a join skips the unit between",
     u"\xD801"
     u"1\xDC00x",
     4, pc::digit, true, 4},
    {"a join over last walks on",
     u"\xD801x\xDC00"
     u"1",
     1, pc::digit, true, 3},
    {"lone high surrogate at the end", u"a\xD801", 2, pc::alnum, false, 1},
};

template <class Sense>
void expect_all_forms(scan_case const& test, Sense sense) {
    ustring text = test.text + ustring(2, u'\0');
    ustring const& ctext = text;
    char16_t* p = &text[0];
    char16_t const* cp = ctext.data();
    EXPECT_EQ(lc::scan(test.mask, p, p + test.range, sense) - p, test.hit) << test.why;
    EXPECT_EQ(lc::scan(test.mask, cp, cp + test.range, sense) - cp, test.hit) << test.why;
    auto const i = text.begin();
    EXPECT_EQ(lc::scan(test.mask, i, i + test.range, sense) - i, test.hit) << test.why;
    auto const ci = ctext.begin();
    EXPECT_EQ(lc::scan(test.mask, ci, ci + test.range, sense) - ci, test.hit) << test.why;
}

TEST(Scan, WalksAndClassifiesAlikeInEveryForm) {
    for (auto const& test : scan_cases) {
        test.inside ? expect_all_forms(test, is_posix()) : expect_all_forms(test, is_not_posix());
    }
}

TEST(Scan, NullPointersGiveLast) {
    char16_t text[] = u"a1";
    char16_t const* ctext = text;
    EXPECT_EQ(lc::scan(pc::digit, nullptr, text + 2, is_posix()), text + 2);
    EXPECT_EQ(lc::scan(pc::digit, text, nullptr, is_posix()), nullptr);
    EXPECT_EQ(lc::scan(pc::digit, nullptr, ctext + 2, is_not_posix()), ctext + 2);
    EXPECT_EQ(lc::scan(pc::digit, ctext, nullptr, is_not_posix()), nullptr);
}

}  // namespace
