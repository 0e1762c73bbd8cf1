#include <fl/i18n/lcctype/classify.hpp>

#include <gtest/gtest.h>

#include <cstdint>

namespace lc = fl::i18n::lcctype;

namespace {

TEST(Classify, GraphIsLettersMarksNumbersPunctuationAndSymbolsOnly) {
    struct {
        char32_t c;
        bool graph;
    } const cases[] = {
        {U'A', true},    {0x0301, true},    {U'7', true},    {0x2167, true},   {U'!', true},
        {0x00A9, true},  {U'+', true},      {U' ', false},   {0x2028, false},  {0x0085, false},
        {0x200B, false}, {0x00AD, false},   {0xE000, false}, {0xF0000, false}, {0xD800, false},
        {0x0378, false}, {0x110000, false},
    };
    for (auto const& test : cases) {
        EXPECT_EQ(lc::isgraph(test.c), test.graph) << std::hex << std::uint32_t(test.c);
    }
}

TEST(Classify, SpaceKeepsNoBreakSpacesAndBreakableSpaceDropsThem) {
    EXPECT_TRUE(lc::isspace(0x00A0));
    EXPECT_FALSE(lc::isbreakable_space(0x00A0));
    EXPECT_TRUE(lc::isbreakable_space(0x3000));
    EXPECT_FALSE(lc::ispunct(U'+'));
    EXPECT_EQ(lc::toupper(0x10428), char32_t(0x10400));
}

}  // namespace
