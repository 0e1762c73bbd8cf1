// scan and the facet's range mask answer from one general category where ICU defines a class by
// categories. Held here, over every code point, to one plain ICU call per class.

#include "i18n/facet/class_mask.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/lcctype/scan.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <vector>

namespace pc = fl::i18n::lcctype::posix_class;
using base = std::ctype_base;

namespace {

// The checks of the class test in their order, each with the mask bits it needs (all of them).
constexpr unsigned int check_bits[] = {pc::cntrl, pc::print, pc::graph, pc::punct,
                                       pc::space, pc::alnum, pc::alpha, pc::xdigit,
                                       pc::digit, pc::lower, pc::upper};

// Bit i holds the ICU answer for check i.
unsigned int icu_answers(UChar32 c) {
    bool const answers[] = {u_iscntrl(c) == 1,       u_isprint(c) == 1,
                            u_isgraph(c) == 1,       (U_MASK(u_charType(c)) & 0x37F80000) != 0,
                            u_isUWhiteSpace(c) == 1, u_isalnum(c) == 1,
                            u_isalpha(c) == 1,       u_digit(c, 16) >= 0,
                            u_isdigit(c) == 1,       u_islower(c) == 1,
                            u_isupper(c) == 1};
    unsigned int bits = 0;
    for (unsigned int i = 0; i < 11; ++i) {
        bits |= unsigned(answers[i]) << i;
    }
    return bits;
}

bool in_classes(unsigned int mask, unsigned int answers) {
    for (unsigned int i = 0; i < 11; ++i) {
        if ((mask & check_bits[i]) == check_bits[i] && (answers >> i & 1)) {
            return true;
        }
    }
    return false;
}

// The range mask of the facet: the checks but print, graph and alnum, with standard bits.
base::mask range_mask(unsigned int answers) {
    base::mask const by_check[] = {base::cntrl, 0,           0,           base::punct,
                                   base::space, 0,           base::alpha, base::xdigit,
                                   base::digit, base::lower, base::upper};
    base::mask m = 0;
    for (unsigned int i = 0; i < 11; ++i) {
        m |= (answers >> i & 1) ? by_check[i] : base::mask(0);
    }
    return m;
}

TEST(PosixClassExhaustive, EveryCodePointAnswersAsTheIcuCallsDo) {
    // Every class alone, the compounds whole and short of a part, and unions that need the
    // calls beside the category (space, xdigit) and that do not.
    std::vector<unsigned int> masks = {0,
                                       pc::alnum,
                                       pc::graph,
                                       pc::alpha | pc::punct,
                                       pc::digit | pc::punct,
                                       pc::cntrl | pc::lower};
    masks.push_back(pc::space | pc::xdigit | pc::upper);
    masks.push_back(0x1FF);
    for (unsigned int bit = 1; bit < 0x200; bit <<= 1) {
        masks.push_back(bit);
    }
    unsigned int failures = 0;
    for (char32_t c = 0; c < 0x110000 && failures < 5; ++c) {
        unsigned int const answers = icu_answers(static_cast<UChar32>(c));
        // A pair is joined only before a low surrogate, hence the second low one; surrogate
        // values go alone, as lone surrogates.
        bool const pair = c > 0xFFFF;
        char16_t const units[3] = {pair ? U16_LEAD(c) : char16_t(c), pair ? U16_TRAIL(c) : u'\0',
                                   pair ? U16_TRAIL(c) : u'\0'};
        char16_t const* const last = units + (pair ? 2 : 1);
        for (unsigned int mask : masks) {
            bool const expected = in_classes(mask, answers);
            bool const hit =
                fl::i18n::lcctype::scan(mask, units, last, fl::i18n::is_posix()) == units;
            bool const miss =
                fl::i18n::lcctype::scan(mask, units, last, fl::i18n::is_not_posix()) == units;
            if (hit != expected || miss == expected) {
                ADD_FAILURE() << "mask " << std::hex << mask << " at U+" << unsigned(c);
                ++failures;
            }
        }
        if (fl::i18n::facet::detail::range_mask_of(c) != range_mask(answers)) {
            ADD_FAILURE() << "range mask at U+" << std::hex << unsigned(c);
            ++failures;
        }
    }
}

}  // namespace
