#ifndef FL_I18N_LCCTYPE_CTYPE_SIZE_LIMIT_HPP
#define FL_I18N_LCCTYPE_CTYPE_SIZE_LIMIT_HPP

#include <fl/i18n/lcctype/ctype_exception.hpp>

#include "common/throw_exception.hpp"

#include <cstddef>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// The longest text, in UTF-16 units, that comparison and transformation hand to ICU: well inside
// ICU's int32 lengths, so that a result may grow past its source without overflowing them.
constexpr std::size_t ctype_size_limit = 0x3FFFFFFF;

inline void check_ctype_size(std::size_t size) {
    if (size > ctype_size_limit) {
        fl::detail::throw_exception(CtypeSizeTooLarge());
    }
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
