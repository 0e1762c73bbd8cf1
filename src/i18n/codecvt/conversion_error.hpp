#ifndef FL_I18N_CODECVT_CONVERSION_ERROR_HPP
#define FL_I18N_CODECVT_CONVERSION_ERROR_HPP

#include <unicode/utypes.h>

namespace fl {
namespace i18n {
namespace detail {

// The one translation of an ICU failure into the conversion exceptions: an invalid or illegal
// character is CvtInvalidCharacter, everything else (a truncated sequence too) is
// CvtConversionFailure.
[[noreturn]] void throw_conversion_error(UErrorCode error);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
