#ifndef FL_I18N_LCCTYPE_POSIX_CLASS_SCAN_HPP
#define FL_I18N_LCCTYPE_POSIX_CLASS_SCAN_HPP

#include "i18n/lcctype/general_category.hpp"
#include "i18n/lcctype/posix_class_test.hpp"
#include "i18n/lcctype/scan_walk.hpp"

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// The walk of scan with the class test of mask, for the classes (inside) or against them. Masks
// that the category alone decides, the usual ones, get a loop of their own that does no more
// per character than a test of u_charType against one set.
template <bool inside, bool bounded = false, class Iterator>
Iterator scan_posix_classes(unsigned int mask, Iterator first, Iterator last) {
    posix_class_set const classes(mask);
    if (classes.by_category_only()) {
        std::uint32_t const categories = classes.categories();
        return scan_walk<bounded>(first, last, [categories](char32_t c) {
            return ((category_of(c) & categories) != 0) == inside;
        });
    }
    return scan_walk<bounded>(first, last,
                              [&classes](char32_t c) { return classes.contains(c) == inside; });
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
