// The class test answers from one general category where ICU defines a class by categories.
// Held here, over every code point, to the plain form: one ICU call per class.

#include "i18n/facet/class_mask.hpp"
#include "i18n/lcctype/posix_class_test.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/lcctype/scan.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <cstdint>
#include <map>
#include <vector>

namespace lc = fl::i18n::lcctype;
namespace pc = fl::i18n::lcctype::posix_class;
using base = std::ctype_base;

namespace {

constexpr char32_t code_point_end = 0x110000;

// The eleven checks in their order: the mask bits each needs (all of them) and the answer of
// ICU for one code point, one bit per check.
constexpr unsigned int check_bits[] = {pc::cntrl, pc::print, pc::graph, pc::punct,
                                       pc::space, pc::alnum, pc::alpha, pc::xdigit,
                                       pc::digit, pc::lower, pc::upper};

std::uint16_t icu_answers(UChar32 c) {
    bool const answers[] = {u_iscntrl(c) == 1,       u_isprint(c) == 1,
                            u_isgraph(c) == 1,       (U_MASK(u_charType(c)) & 0x37F80000) != 0,
                            u_isUWhiteSpace(c) == 1, u_isalnum(c) == 1,
                            u_isalpha(c) == 1,       u_digit(c, 16) >= 0,
                            u_isdigit(c) == 1,       u_islower(c) == 1,
                            u_isupper(c) == 1};
    std::uint16_t bits = 0;
    for (unsigned int i = 0; i < 11; ++i) {
        bits |= static_cast<std::uint16_t>(answers[i] << i);
    }
    return bits;
}

bool reference_test(unsigned int mask, std::uint16_t answers) {
    for (unsigned int i = 0; i < 11; ++i) {
        if ((mask & check_bits[i]) == check_bits[i] && (answers >> i & 1)) {
            return true;
        }
    }
    return false;
}

// The range mask of the ctype facet: the checks without print, graph and alnum.
base::mask reference_range_mask(std::uint16_t answers) {
    struct {
        unsigned int check;
        base::mask standard;
    } const range_bits[] = {{0, base::cntrl}, {3, base::punct},  {4, base::space},
                            {6, base::alpha}, {7, base::xdigit}, {8, base::digit},
                            {9, base::lower}, {10, base::upper}};
    base::mask m = 0;
    for (auto const& bit : range_bits) {
        if (answers >> bit.check & 1) {
            m |= bit.standard;
        }
    }
    return m;
}

std::vector<std::uint16_t> const& all_answers() {
    static std::vector<std::uint16_t> const answers = [] {
        std::vector<std::uint16_t> out(code_point_end);
        for (char32_t c = 0; c < code_point_end; ++c) {
            out[c] = icu_answers(static_cast<UChar32>(c));
        }
        return out;
    }();
    return answers;
}

TEST(PosixClassExhaustive, EveryCodePointAnswersAsTheIcuCallsDo) {
    // Every single class, the compounds with and without their parts, and a few unions.
    unsigned int const masks[] = {0,
                                  pc::alpha,
                                  pc::digit,
                                  pc::cntrl,
                                  pc::punct,
                                  pc::space,
                                  pc::xdigit,
                                  pc::lower,
                                  pc::upper,
                                  pc::print,
                                  pc::alnum,
                                  pc::graph,
                                  pc::alpha | pc::punct,
                                  pc::space | pc::xdigit | pc::upper,
                                  0x1FF};
    auto const& answers = all_answers();
    for (unsigned int mask : masks) {
        lc::detail::posix_class_set const classes(mask);
        unsigned int mismatches = 0;
        for (char32_t c = 0; c < code_point_end; ++c) {
            if (classes.contains(c) != reference_test(mask, answers[c]) && ++mismatches <= 3) {
                ADD_FAILURE() << "mask " << std::hex << mask << " at U+" << unsigned(c);
            }
        }
        EXPECT_EQ(mismatches, 0u) << "mask " << std::hex << mask;
    }
}

TEST(PosixClassExhaustive, EveryMaskAnswersAsTheIcuCallsDo) {
    // One code point for each combination of ICU answers and general category stands for all
    // code points that share it; the Latin hexadecimal letters are kept apart.
    auto const& answers = all_answers();
    std::map<std::uint32_t, char32_t> representatives;
    for (char32_t c = 0; c < code_point_end; ++c) {
        bool const latin = c < 0x80 || (c >= 0xFF00 && c <= 0xFF5A);
        std::uint32_t const key =
            answers[c] | std::uint32_t(u_charType(UChar32(c))) << 11 | std::uint32_t(latin) << 16;
        representatives.emplace(key, c);
    }
    for (unsigned int mask = 0; mask < 0x200; ++mask) {
        lc::detail::posix_class_set const classes(mask);
        for (auto const& entry : representatives) {
            char32_t const c = entry.second;
            ASSERT_EQ(classes.contains(c), reference_test(mask, answers[c]))
                << "mask " << std::hex << mask << " at U+" << unsigned(c);
        }
    }
}

TEST(PosixClassExhaustive, RangeMaskOfEveryCodePointAnswersAsTheIcuCallsDo) {
    auto const& answers = all_answers();
    for (char32_t c = 0; c < code_point_end; ++c) {
        ASSERT_EQ(fl::i18n::facet::detail::range_mask_of(c), reference_range_mask(answers[c]))
            << "U+" << std::hex << unsigned(c);
    }
}

TEST(PosixClassExhaustive, ScanStopsWhereTheIcuCallsSay) {
    // Every BMP character but the surrogates, whose joining is the walk's own affair.
    std::u16string text;
    for (char32_t c = 0; c < 0x10000; ++c) {
        if (c < 0xD800 || c > 0xDFFF) {
            text += static_cast<char16_t>(c);
        }
    }
    text += u"\0\0";
    char16_t const* const first = text.data();
    char16_t const* const last = first + text.size() - 2;
    auto const& answers = all_answers();
    for (unsigned int mask : {pc::alpha, pc::graph, pc::space | pc::xdigit}) {
        for (bool inside : {true, false}) {
            std::vector<char16_t> expected;
            for (char16_t const* p = first; p != last; ++p) {
                if (reference_test(mask, answers[*p]) == inside) {
                    expected.push_back(*p);
                }
            }
            std::vector<char16_t> found;
            for (char16_t const* p = first;; ++p) {
                p = inside ? lc::scan(mask, p, last, fl::i18n::is_posix())
                           : lc::scan(mask, p, last, fl::i18n::is_not_posix());
                if (p == last) {
                    break;
                }
                found.push_back(*p);
            }
            EXPECT_EQ(found, expected) << "mask " << std::hex << mask << " inside " << inside;
        }
    }
}

}  // namespace
