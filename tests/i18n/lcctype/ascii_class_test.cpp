#include <fl/i18n/lcctype/ascii_class.hpp>

#include <gtest/gtest.h>

#include <cctype>

namespace lc = fl::i18n::lcctype;

namespace {

struct ascii_test {
    char const* name;
    bool (*ours)(char32_t);
    int (*c_library)(int);
};

// The process never calls setlocale, so the C library answers for the "C" locale, whose ASCII
// classes are exactly the ones the table must hold.
ascii_test const ascii_tests[] = {
    {"space", lc::isspace_ascii, [](int c) { return std::isspace(c); }},
    {"alpha", lc::isalpha_ascii, [](int c) { return std::isalpha(c); }},
    {"digit", lc::isdigit_ascii, [](int c) { return std::isdigit(c); }},
    {"alnum", lc::isalnum_ascii, [](int c) { return std::isalnum(c); }},
    {"lower", lc::islower_ascii, [](int c) { return std::islower(c); }},
    {"upper", lc::isupper_ascii, [](int c) { return std::isupper(c); }},
    {"ascii", lc::isascii_character, [](int) { return 1; }},
};

TEST(AsciiClass, AgreesWithTheCLocaleOnEveryAsciiCodePoint) {
    for (auto const& test : ascii_tests) {
        for (int c = 0; c < 0x80; ++c) {
            EXPECT_EQ(test.ours(char32_t(c)), test.c_library(c) != 0)
                << test.name << " of 0x" << std::hex << c;
        }
    }
}

TEST(AsciiClass, NothingBeyondAsciiBelongsToAnyClass) {
    // Values whose low seven bits name a member of every class, and two Unicode spaces.
    char32_t const beyond[] = {0x80,        0x85,        0xA0,          0x100 + 'a', 0x100 + 'A',
                               0x100 + '5', 0x100 + ' ', 0x10000 + 'z', 0x80000041,  0xFFFFFFFF};
    for (auto const& test : ascii_tests) {
        for (char32_t c : beyond) {
            EXPECT_FALSE(test.ours(c)) << test.name << " of 0x" << std::hex << std::uint32_t(c);
        }
    }
}

}  // namespace
