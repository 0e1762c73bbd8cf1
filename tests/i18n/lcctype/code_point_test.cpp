#include <fl/i18n/lcctype/code_point.hpp>

#include <gtest/gtest.h>

namespace lc = fl::i18n::lcctype;

namespace {

TEST(CodePoint, ValidityBoundaries) {
    struct {
        char32_t c;
        bool utf32;
        bool uchar;
    } const cases[] = {
        {0x0000, true, true},    {0xD7FF, true, true},     {0xD800, false, true},
        {0xDBFF, false, true},   {0xDC00, false, true},    {0xDFFF, false, true},
        {0xE000, true, true},    {0xFFFF, true, true},     {0x10000, true, false},
        {0x10FFFF, true, false}, {0x110000, false, false}, {0xFFFFFFFF, false, false},
    };
    for (auto const& test : cases) {
        EXPECT_EQ(lc::is_valid_utf32(test.c), test.utf32) << std::hex << std::uint32_t(test.c);
        EXPECT_EQ(lc::is_valid_uchar(test.c), test.uchar) << std::hex << std::uint32_t(test.c);
    }
}

TEST(CodePoint, JoinsOnlyRealPairs) {
    struct {
        char16_t high;
        char16_t low;
        char32_t joined;
    } const cases[] = {
        {0xD83D, 0xDE00, 0x1F600},  {0xD800, 0xDC00, 0x10000},
        {0xDBFF, 0xDFFF, 0x10FFFF}, {0x0041, 0x0042, 0xFFFD},  // two ordinary characters
        {0x0041, 0xDC00, 0xFFFD},                              // ordinary first unit
        {0xD800, 0x0041, 0xFFFD},                              // ordinary second unit
        {0xDC00, 0xD800, 0xFFFD},                              // reversed pair
        {0xD800, 0xD800, 0xFFFD},                              // two high surrogates
    };
    for (auto const& test : cases) {
        EXPECT_EQ(lc::make_utf32_from_uchar(test.high, test.low), test.joined)
            << std::hex << test.high << " " << test.low;
    }
}

TEST(CodePoint, SplitsSupplementaryValuesAndPassesTheRest) {
    struct {
        char32_t c;
        int count;
        char16_t first;
        char16_t second;
    } const cases[] = {
        {0x0041, 1, 0x0041, 0},
        {0xD800, 1, 0xD800, 0},
        {0xFFFF, 1, 0xFFFF, 0},
        {0x10000, 2, 0xD800, 0xDC00},
        {0x1F600, 2, 0xD83D, 0xDE00},
        {0x10FFFF, 2, 0xDBFF, 0xDFFF},
        // Not checked: the lead unit wraps and means nothing.
        {0x110000, 2, 0xDC00, 0xDC00},
    };
    for (auto const& test : cases) {
        char16_t out[2] = {0, 0};
        ASSERT_EQ(lc::make_uchar_from_utf32(test.c, out), test.count);
        EXPECT_EQ(out[0], test.first) << std::hex << std::uint32_t(test.c);
        EXPECT_EQ(out[1], test.second) << std::hex << std::uint32_t(test.c);
        if (test.count == 2 && lc::is_valid_utf32(test.c)) {
            EXPECT_EQ(lc::make_utf32_from_uchar(out[0], out[1]), test.c);
        }
    }
}

}  // namespace
