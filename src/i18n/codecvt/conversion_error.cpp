#include "i18n/codecvt/conversion_error.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"

namespace fl {
namespace i18n {
namespace detail {

void throw_conversion_error(UErrorCode error) {
    if (error == U_INVALID_CHAR_FOUND || error == U_ILLEGAL_CHAR_FOUND) {
        fl::detail::throw_exception(CvtInvalidCharacter());
    }
    // A sequence cut off at the end of the text is not an invalid character: the rest may
    // simply not have arrived.
    fl::detail::throw_exception(CvtConversionFailure());
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
