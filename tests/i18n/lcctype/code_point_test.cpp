#include <fl/i18n/lcctype/code_point.hpp>

#include <gtest/gtest.h>

namespace lc = fl::i18n::lcctype;

namespace {

TEST(CodePoint, ValidityBoundaries) {
    struct {
        char32_t c;
        bool utf32, uchar;
    } const cases[] = {
        {0xD7FF, true, true},    {0xD800, false, true},    {0xDFFF, false, true},
        {0xE000, true, true},    {0xFFFF, true, true},     {0x10000, true, false},
        {0x10FFFF, true, false}, {0x110000, false, false}, {0xFFFFFFFF, false, false},
    };
    for (auto const& test : cases) {
        EXPECT_EQ(lc::is_valid_utf32(test.c), test.utf32) << std::hex << test.c;
        EXPECT_EQ(lc::is_valid_uchar(test.c), test.uchar) << std::hex << test.c;
    }
}

// Each row is a unit sequence and the code point it stands for; a value that needs no pair
// splits into one unit, and joining anything but a real pair gives U+FFFD.
TEST(CodePoint, SplitsAndJoins) {
    struct {
        char16_t first, second;
        char32_t c;
        int count;
    } const cases[] = {
        {0xD83D, 0xDE00, 0x1F600, 2},  {0xD800, 0xDC00, 0x10000, 2}, {0xDBFF, 0xDFFF, 0x10FFFF, 2},
        {0xDC00, 0xDC00, 0x110000, 2},  // not checked: the lead unit wraps
        {0x0041, 0x0042, 0x41, 1},     {0xD800, 0x0041, 0xD800, 1},  {0xDC00, 0xD800, 0xDC00, 1},
    };
    for (auto const& test : cases) {
        char16_t out[2] = {0, 0};
        ASSERT_EQ(lc::make_uchar_from_utf32(test.c, out), test.count);
        EXPECT_EQ(out[0], test.first) << std::hex << test.c;
        bool const pair = test.count == 2 && lc::is_valid_utf32(test.c);
        EXPECT_EQ(lc::make_utf32_from_uchar(test.first, test.second), pair ? test.c : 0xFFFD)
            << std::hex << test.c;
        if (test.count == 2) {
            EXPECT_EQ(out[1], test.second) << std::hex << test.c;
        }
    }
}

}  // namespace
