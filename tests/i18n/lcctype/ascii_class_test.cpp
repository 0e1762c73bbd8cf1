#include <fl/i18n/lcctype/ascii_class.hpp>

#include <gtest/gtest.h>

#include <cctype>

namespace lc = fl::i18n::lcctype;

namespace {

// The process never calls setlocale, so the C library answers for the "C" locale, whose ASCII
// classes are exactly those of the table.
struct {
    bool (*ours)(char32_t);
    int (*c_library)(int);
} const ascii_tests[] = {
    {lc::isspace_ascii, [](int c) { return std::isspace(c); }},
    {lc::isalpha_ascii, [](int c) { return std::isalpha(c); }},
    {lc::isdigit_ascii, [](int c) { return std::isdigit(c); }},
    {lc::isalnum_ascii, [](int c) { return std::isalnum(c); }},
    {lc::islower_ascii, [](int c) { return std::islower(c); }},
    {lc::isupper_ascii, [](int c) { return std::isupper(c); }},
    {lc::isascii_character, [](int) { return 1; }},
};

TEST(AsciiClass, AgreesWithTheCLocaleAndKnowsNothingBeyondAscii) {
    // Low seven bits of a member of every class, behind a higher bit; and two Unicode spaces.
    char32_t const beyond[] = {0x80,        0x85,          0xA0,       0x100 + 'a', 0x100 + '5',
                               0x100 + ' ', 0x10000 + 'Z', 0x80000041, 0xFFFFFFFF};
    for (std::size_t t = 0; t < std::size(ascii_tests); ++t) {
        for (int c = 0; c < 0x80; ++c) {
            EXPECT_EQ(ascii_tests[t].ours(char32_t(c)), ascii_tests[t].c_library(c) != 0)
                << "test " << t << " of 0x" << std::hex << c;
        }
        for (char32_t c : beyond) {
            EXPECT_FALSE(ascii_tests[t].ours(c)) << "test " << t << " of 0x" << std::hex << c;
        }
    }
}

}  // namespace
