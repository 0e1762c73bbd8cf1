#include "i18n/facet/class_mask.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>

#include "i18n/lcctype/general_category.hpp"

#include <unicode/uchar.h>

#include <cstdint>

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

struct class_categories {
    std_mask standard;
    std::uint32_t categories;
};

// The classes of the range mask that are sets of general categories, as ICU defines them.
class_categories const range_classes[] = {
    {base::alpha, lcctype::detail::u_isalpha_categories},
    {base::cntrl, lcctype::detail::u_iscntrl_categories},
    {base::digit, lcctype::detail::u_isdigit_categories},
    {base::punct, lcctype::detail::punct_categories},
    {base::lower, lcctype::detail::u_islower_categories},
    {base::upper, lcctype::detail::u_isupper_categories},
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

// One u_charType gives every class that ICU defines by category; only white space and the
// hexadecimal digits need calls of their own.
std_mask range_mask_of(char32_t c) {
    namespace lc = lcctype::detail;
    std::uint32_t const category = lc::category_of(c);
    std_mask m = 0;
    for (auto const& by_category : range_classes) {
        if ((category & by_category.categories) != 0) {
            m |= by_category.standard;
        }
    }
    if (u_isUWhiteSpace(static_cast<UChar32>(c)) == 1) {
        m |= base::space;
    }
    if (lc::is_hex_digit(c, category)) {
        m |= base::xdigit;
    }
    return m;
}

}  // namespace detail
}  // namespace facet
}  // namespace i18n
}  // namespace fl
