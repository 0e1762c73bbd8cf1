#ifndef FL_I18N_LCCTYPE_POSIX_CLASS_TEST_HPP
#define FL_I18N_LCCTYPE_POSIX_CLASS_TEST_HPP

#include "i18n/lcctype/general_category.hpp"

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// The class test of scan for one mask (posix_class bits), shared with the char16_t ctype facet
// so that both agree on what a class holds. Each bit is tested by itself, so the mask is a union
// of classes; graph and alnum count only with all of their bits.
//
// The mask is decoded once, into sets of general categories: every class but white space and
// the hexadecimal digits is a category set in ICU, so one u_charType per code point replaces up
// to nine ICU calls. The checks keep their order (control, print, graph, punct, space, alnum,
// alpha, xdigit, digit, lower, upper); as none has a side effect, only cost depends on it.
class posix_class_set {
public:
    explicit posix_class_set(unsigned int mask) noexcept;

    bool contains(char32_t c) const {
        std::uint32_t const category = needs_category_ ? category_of(c) : 0;
        if ((category & before_space_) != 0) {
            return true;
        }
        if (space_ && u_isUWhiteSpace(static_cast<UChar32>(c)) == 1) {
            return true;
        }
        if ((category & before_xdigit_) != 0) {
            return true;
        }
        if (xdigit_ && is_hex_digit(c, category)) {
            return true;
        }
        return (category & after_xdigit_) != 0;
    }

    // Without white space and the hexadecimal digits, every check of the mask is a test of the
    // category, and all of them together are one test against the union of their sets.
    bool by_category_only() const { return !space_ && !xdigit_; }
    std::uint32_t categories() const { return before_space_ | before_xdigit_ | after_xdigit_; }

private:
    std::uint32_t before_space_ = 0;   // control, print, graph, punct
    std::uint32_t before_xdigit_ = 0;  // alnum, alpha
    std::uint32_t after_xdigit_ = 0;   // digit, lower, upper
    bool space_ = false;
    bool xdigit_ = false;
    bool needs_category_ = false;
};

inline bool in_posix_classes(unsigned int mask, char32_t c) {
    return posix_class_set(mask).contains(c);
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
