#include <fl/i18n/lcctype/classify.hpp>

#include <gtest/gtest.h>

#include <unicode/uchar.h>

namespace lc = fl::i18n::lcctype;

namespace {

struct graph_case {
    char32_t c;
    bool graph;
    char const* why;
};

graph_case const graph_cases[] = {
    {U'A', true, "letter"},
    {0x0301, true, "combining mark"},
    {U'7', true, "decimal number"},
    {0x2167, true, "letter number"},
    {U'!', true, "punctuation"},
    {0x00A9, true, "other symbol"},
    {U'+', true, "math symbol"},
    {U' ', false, "space separator"},
    {0x2028, false, "line separator"},
    {0x0085, false, "control"},
    {0x200B, false, "format"},
    {0x00AD, false, "soft hyphen, a format character"},
    {0xE000, false, "private use, which u_isgraph accepts"},
    {0xF0000, false, "supplementary private use"},
    {0xD800, false, "surrogate"},
    {0x0378, false, "unassigned"},
    {0x110000, false, "beyond the code space"},
};

TEST(Classify, GraphIsLettersMarksNumbersPunctuationAndSymbolsOnly) {
    for (auto const& test : graph_cases) {
        EXPECT_EQ(lc::isgraph(test.c), test.graph) << test.why;
    }
    // The deliberate difference from ICU's own notion.
    EXPECT_TRUE(u_isgraph(0xE000));
}

struct distinction_case {
    char const* what;
    bool (*function)(char32_t);
    char32_t c;
    bool expected;
};

// Pairs of functions that are easily confused: each row tells one from its neighbour.
distinction_case const distinction_cases[] = {
    {"isspace of no-break space", lc::isspace, 0x00A0, true},
    {"isbreakable_space of no-break space", lc::isbreakable_space, 0x00A0, false},
    {"isspace of ideographic space", lc::isspace, 0x3000, true},
    {"isbreakable_space of ideographic space", lc::isbreakable_space, 0x3000, true},
    {"ispunct of a math symbol", lc::ispunct, U'+', false},
    {"ispunct of a dash", lc::ispunct, 0x2014, true},
    {"isalnum of a Devanagari digit", lc::isalnum, 0x0967, true},
    {"isdigit of a letter number", lc::isdigit, 0x2167, false},
    {"isxdigit of a fullwidth F", lc::isxdigit, 0xFF26, true},
    {"isprint of a space", lc::isprint, U' ', true},
    {"iscntrl of NEL", lc::iscntrl, 0x0085, true},
    {"islower of a title-case letter", lc::islower, 0x01C5, false},
    {"isupper of a title-case letter", lc::isupper, 0x01C5, false},
    {"isalpha of a Deseret letter", lc::isalpha, 0x10428, true},
};

TEST(Classify, EachFunctionAsksForItsOwnProperty) {
    for (auto const& test : distinction_cases) {
        EXPECT_EQ(test.function(test.c), test.expected) << test.what;
    }
}

TEST(Classify, CaseMappingIsSimpleAndCoversSupplementaryLetters) {
    struct {
        char32_t (*map)(char32_t);
        char32_t from;
        char32_t to;
    } const cases[] = {
        {lc::toupper, U'a', U'A'},       {lc::tolower, U'A', U'a'},
        {lc::toupper, 0x00DF, 0x00DF},  // sharp s has no one-letter capital
        {lc::tolower, 0x0130, U'i'},     {lc::toupper, 0x10428, 0x10400},
        {lc::tolower, 0x10400, 0x10428}, {lc::toupper, U'1', U'1'},
    };
    for (auto const& test : cases) {
        EXPECT_EQ(test.map(test.from), test.to) << std::hex << std::uint32_t(test.from);
    }
}

}  // namespace
