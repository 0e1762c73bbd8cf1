#include "i18n/facet/class_mask.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>

#include "i18n/lcctype/general_category.hpp"

#include <unicode/uchar.h>

namespace fl {
namespace i18n {
namespace facet {
namespace detail {

namespace {

using base = std::ctype_base;
namespace pc = lcctype::posix_class;

struct class_bit {
    std_mask standard;
    unsigned int posix;
};

// graph and alnum are not listed: the standard spells them as unions of these bits.
class_bit const class_bits[] = {
    {base::upper, pc::upper}, {base::lower, pc::lower},   {base::alpha, pc::alpha},
    {base::digit, pc::digit}, {base::xdigit, pc::xdigit}, {base::space, pc::space},
    {base::print, pc::print}, {base::cntrl, pc::cntrl},   {base::punct, pc::punct},
};

}  // namespace

unsigned int to_posix_mask(std_mask m) {
    unsigned int posix = 0;
    for (auto const& bit : class_bits) {
        if (m & bit.standard) {
            posix |= bit.posix;
        }
    }
    return posix;
}

std_mask to_std_mask(unsigned int posix) {
    std_mask m = 0;
    for (auto const& bit : class_bits) {
        if (posix & bit.posix) {
            m |= bit.standard;
        }
    }
    return m;
}

std_mask range_mask_of(char32_t c) {
    UChar32 const u = static_cast<UChar32>(c);
    std_mask m = 0;
    if (u_isalpha(u) == 1) {
        m |= base::alpha;
    }
    if (u_iscntrl(u) == 1) {
        m |= base::cntrl;
    }
    if (u_isUWhiteSpace(u) == 1) {
        m |= base::space;
    }
    if (u_isdigit(u) == 1) {
        m |= base::digit;
    }
    if (lcctype::detail::in_categories(c, lcctype::detail::punct_categories)) {
        m |= base::punct;
    }
    if (u_islower(u) == 1) {
        m |= base::lower;
    }
    if (u_isupper(u) == 1) {
        m |= base::upper;
    }
    if (u_digit(u, 16) >= 0) {
        m |= base::xdigit;
    }
    return m;
}

}  // namespace detail
}  // namespace facet
}  // namespace i18n
}  // namespace fl
