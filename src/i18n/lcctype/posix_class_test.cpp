#include "i18n/lcctype/posix_class_test.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

namespace {

inline bool has_all(unsigned int mask, unsigned int bits) {
    return (mask & bits) == bits;
}

inline std::uint32_t categories_if(bool wanted, std::uint32_t categories) {
    return wanted ? categories : 0;
}

}  // namespace

posix_class_set::posix_class_set(unsigned int mask) noexcept {
    using namespace posix_class;
    before_space_ = categories_if(mask & cntrl, u_iscntrl_categories) |
                    categories_if(mask & print, u_isprint_categories) |
                    categories_if(has_all(mask, graph), u_isgraph_categories) |
                    categories_if(mask & punct, punct_categories);
    before_xdigit_ = categories_if(has_all(mask, alnum), u_isalnum_categories) |
                     categories_if(mask & alpha, u_isalpha_categories);
    after_xdigit_ = categories_if(mask & digit, u_isdigit_categories) |
                    categories_if(mask & lower, u_islower_categories) |
                    categories_if(mask & upper, u_isupper_categories);
    space_ = (mask & space) != 0;
    xdigit_ = (mask & xdigit) != 0;
    needs_category_ = xdigit_ || (before_space_ | before_xdigit_ | after_xdigit_) != 0;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
