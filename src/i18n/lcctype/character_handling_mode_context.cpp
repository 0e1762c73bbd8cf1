#include <fl/i18n/lcctype/character_handling_mode_context.hpp>
#include <fl/i18n/lcctype/ctype_exception.hpp>

#include "common/throw_exception.hpp"

namespace fl {
namespace i18n {

const unsigned int character_handling_mode_context::default_mode;
const unsigned int character_handling_mode_context::insensitive_mode;
const unsigned int character_handling_mode_context::normalized_compose_mode;
const unsigned int character_handling_mode_context::normalized_decompose_mode;
const unsigned int character_handling_mode_context::locale_mode;

character_handling_mode_context::character_handling_mode_context(unsigned int mask) : mask_(mask) {
    if ((mask & ~0xFU) != 0) {
        fl::detail::throw_exception(CtypeInvalidArgument());
    }
}

}  // namespace i18n
}  // namespace fl
