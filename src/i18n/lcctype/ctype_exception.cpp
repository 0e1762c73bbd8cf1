#include <fl/i18n/lcctype/ctype_exception.hpp>

#include "common/throw_exception.hpp"

namespace fl {
namespace i18n {

CtypeExceptionBase::CtypeExceptionBase(char const* message, ctype_excp_id id)
    : message_(message), id_(id) {}

CtypeExceptionBase::CtypeExceptionBase(CtypeExceptionBase const& other) = default;

CtypeExceptionBase::~CtypeExceptionBase() = default;

char const* CtypeExceptionBase::what() const noexcept {
    return message_.c_str();
}

CtypeSizeTooLarge::CtypeSizeTooLarge()
    : CtypeExceptionBase("Data size too large.", ctype_size_too_large) {}

CtypeTransformFailure::CtypeTransformFailure()
    : CtypeExceptionBase("Transformation failure.", ctype_transform_failure) {}

CtypeStrCompFailure::CtypeStrCompFailure()
    : CtypeExceptionBase("String comparison failure.", ctype_str_comp_failure) {}

CtypeInvalidCharacter::CtypeInvalidCharacter()
    : CtypeExceptionBase("Invalid character error.", ctype_invalid_character) {}

CtypeInvalidArgument::CtypeInvalidArgument()
    : CtypeExceptionBase("Invalid argument error.", ctype_invalid_argument) {}

namespace lcctype {
namespace detail {

void throw_ctype_invalid_character_exception() {
    fl::detail::throw_exception(CtypeInvalidCharacter());
}

}  // namespace detail
}  // namespace lcctype

}  // namespace i18n
}  // namespace fl
