#include <fl/i18n/lcctype/trim.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

namespace {

struct trim_case {
    char const* why;
    ustring text, chars, both, left, right;
};

trim_case const trim_cases[] = {
    {"inner units stay", u"  a b  ", u" ", u"a b", u"a b  ", u"  a b"},
    {"only the set", u"   ", u" ", u"", u"", u""},
    {"empty set", u" a ", u"", u" a ", u" a ", u" a "},
    {"empty text", u"", u" ", u"", u"", u""},
    {"a set of several units", u"-+a+-", u"+-", u"a", u"a+-", u"-+a"},
    // U+10400 is D801 DC00: either half alone is taken away.
    {"halves of a pair", u"\xDC00x\U00010400\xD801", u"\U00010400", u"x", u"x\U00010400\xD801",
     u"\xDC00x"},
};

TEST(Trim, InPlaceAndCopyingFormsAgree) {
    for (auto const& c : trim_cases) {
        EXPECT_EQ(trim_copy(c.text, c.chars), c.both) << c.why;
        EXPECT_EQ(trim_copy_left(c.text, c.chars), c.left) << c.why;
        EXPECT_EQ(trim_copy_right(c.text, c.chars), c.right) << c.why;
        ustring both = c.text, left = c.text, right = c.text;
        EXPECT_EQ(&trim(both, c.chars), &both);
        EXPECT_EQ(both, c.both) << c.why;
        EXPECT_EQ(trim_left(left, c.chars), c.left) << c.why;
        EXPECT_EQ(trim_right(right, c.chars), c.right) << c.why;
    }
}

}  // namespace
