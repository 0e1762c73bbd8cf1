// Unicode's own normalisation conformance file as the oracle for transform and for the
// normalised strengths of compare. Every line is checked.

#include <fl/i18n/lcctype/string_compare.hpp>
#include <fl/i18n/lcctype/string_transform.hpp>
#include <fl/i18n/ustring.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <unordered_set>

namespace lc = fl::i18n::lcctype;
using namespace fl::i18n;  // the tags

namespace {

using columns = std::array<ustring, 5>;

void append(ustring& out, unsigned long cp) {
    out += cp > 0xFFFF ? ustring{static_cast<char16_t>(0xD7C0 + (cp >> 10)),
                                 static_cast<char16_t>(0xDC00 + (cp & 0x3FF))}
                       : ustring(1, static_cast<char16_t>(cp));
}

ustring from_hex(std::string const& field) {
    std::istringstream in(field);
    ustring out;
    unsigned long cp = 0;
    while (in >> std::hex >> cp) {
        append(out, cp);
    }
    return out;
}

template <class Tag>
ustring transformed(ustring const& source) {
    ustring out(lc::transform(nullptr, 0, source.data(), source.size(), Tag()), u'\0');
    lc::transform(&out[0], out.size(), source.data(), source.size(), Tag());
    return out;
}

template <class Tag>
bool equal(ustring const& a, ustring const& b) {
    return lc::compare(a.data(), a.size(), b.data(), b.size(), Tag()) == 0;
}

// c2 == NFC(c1..c3), c4 == NFC(c4, c5); c3 == NFD(c1..c3), c5 == NFD(c4, c5);
// c4 == NFKC(c1..c5); c5 == NFKD(c1..c5).
void check_line(columns const& c, std::string const& line) {
    for (int i = 0; i < 5; ++i) {
        bool const first_three = i < 3;
        EXPECT_EQ(transformed<to_nfc>(c[i]), first_three ? c[1] : c[3]) << line;
        EXPECT_EQ(transformed<to_nfd>(c[i]), first_three ? c[2] : c[4]) << line;
        EXPECT_EQ(transformed<to_nfkc>(c[i]), c[3]) << line;
        EXPECT_EQ(transformed<to_nfkd>(c[i]), c[4]) << line;
        EXPECT_TRUE(equal<normalized_case_sensitive>(c[i], first_three ? c[0] : c[3])) << line;
        EXPECT_TRUE(equal<normalized_compatibility_case_sensitive>(c[i], c[0])) << line;
        EXPECT_TRUE(equal<normalized_compatibility_case_insensitive>(c[i], c[0])) << line;
    }
}

TEST(NormalizationConformance, EveryLineOfTheUnicodeFile) {
    char const* path = std::getenv("OVI18N_NORMALIZATION_TEST");
    std::ifstream file(path ? path : "");
    if (!file) {
        GTEST_SKIP() << "NormalizationTest.txt not available (package unicode-data)";
    }
    std::unordered_set<char32_t> listed;  // the single code points of part 1
    bool in_part1 = false;
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        if (line[0] == '@') {
            in_part1 = line.rfind("@Part1", 0) == 0;
            continue;
        }
        columns c;
        std::istringstream fields(line);
        for (auto& column : c) {
            std::string field;
            std::getline(fields, field, ';');
            column = from_hex(field);
        }
        if (in_part1) {
            listed.insert(static_cast<char32_t>(std::stoul(line, nullptr, 16)));
        }
        check_line(c, line);
        ++lines;
    }
    EXPECT_GT(lines, 10000U);
    // Every code point not listed in part 1 is its own normal form in all four.
    for (char32_t cp = 0; cp <= 0x10FFFF; ++cp) {
        if ((cp >= 0xD800 && cp <= 0xDFFF) || listed.count(cp) != 0) {
            continue;
        }
        ustring x;
        append(x, cp);
        ASSERT_TRUE(transformed<to_nfc>(x) == x && transformed<to_nfd>(x) == x &&
                    transformed<to_nfkc>(x) == x && transformed<to_nfkd>(x) == x)
            << std::hex << static_cast<unsigned long>(cp);
    }
}

}  // namespace
