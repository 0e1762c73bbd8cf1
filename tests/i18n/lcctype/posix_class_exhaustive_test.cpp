// scan and the facet's range mask answer from one general category where ICU defines a class by
// categories. Held here, over every code point, to one plain ICU call per class.

#include "i18n/facet/class_mask.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/lcctype/scan.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

namespace pc = fl::i18n::lcctype::posix_class;
using base = std::ctype_base;

namespace {

// The checks of the class test in their order: the mask bits each needs (all of them), and the
// bit it gives the facet's range mask, which lacks print, graph and alnum.
struct check {
    unsigned int bits;
    base::mask range_bit;
};
constexpr check checks[] = {{pc::cntrl, base::cntrl}, {pc::print, 0},
                            {pc::graph, 0},           {pc::punct, base::punct},
                            {pc::space, base::space}, {pc::alnum, 0},
                            {pc::alpha, base::alpha}, {pc::xdigit, base::xdigit},
                            {pc::digit, base::digit}, {pc::lower, base::lower},
                            {pc::upper, base::upper}};

TEST(PosixClassExhaustive, EveryCodePointAnswersAsTheIcuCallsDo) {
    // Every class alone, the compounds whole and short of a part, unions with and without the
    // classes that need a call beside the category (space, xdigit), and all classes.
    unsigned int const masks[] = {0x001, 0x002, 0x004, 0x008, 0x010, 0x020, 0x040, 0x080, 0x100,
                                  0x000, 0x003, 0x00B, 0x009, 0x00A, 0x044, 0x0B0, 0x1FF};
    unsigned int failures = 0;
    for (char32_t c = 0; c < 0x110000 && failures < 5; ++c) {
        UChar32 const u = static_cast<UChar32>(c);
        bool const icu[] = {u_iscntrl(u) == 1,       u_isprint(u) == 1,
                            u_isgraph(u) == 1,       (U_MASK(u_charType(u)) & 0x37F80000) != 0,
                            u_isUWhiteSpace(u) == 1, u_isalnum(u) == 1,
                            u_isalpha(u) == 1,       u_digit(u, 16) >= 0,
                            u_isdigit(u) == 1,       u_islower(u) == 1,
                            u_isupper(u) == 1};
        // A pair is joined only before a low surrogate, hence the second low one; surrogate
        // values go alone, as lone surrogates.
        bool const pair = c > 0xFFFF;
        char16_t const units[3] = {pair ? U16_LEAD(c) : char16_t(c), pair ? U16_TRAIL(c) : u'\0',
                                   pair ? U16_TRAIL(c) : u'\0'};
        char16_t const* const last = units + (pair ? 2 : 1);
        for (unsigned int mask : masks) {
            bool expected = false;
            for (unsigned int i = 0; i < 11; ++i) {
                expected |= (mask & checks[i].bits) == checks[i].bits && icu[i];
            }
            bool const hit =
                fl::i18n::lcctype::scan(mask, units, last, fl::i18n::is_posix()) == units;
            bool const miss =
                fl::i18n::lcctype::scan(mask, units, last, fl::i18n::is_not_posix()) == units;
            if (hit != expected || miss == expected) {
                ADD_FAILURE() << "mask " << std::hex << mask << " at U+" << unsigned(c);
                ++failures;
            }
        }
        base::mask range_mask = 0;
        for (unsigned int i = 0; i < 11; ++i) {
            range_mask |= icu[i] ? checks[i].range_bit : base::mask(0);
        }
        if (fl::i18n::facet::detail::range_mask_of(c) != range_mask) {
            ADD_FAILURE() << "range mask at U+" << std::hex << unsigned(c);
            ++failures;
        }
    }
}

}  // namespace
