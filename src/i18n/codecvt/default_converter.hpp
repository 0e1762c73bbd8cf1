#ifndef FL_I18N_CODECVT_DEFAULT_CONVERTER_HPP
#define FL_I18N_CODECVT_DEFAULT_CONVERTER_HPP

#include <unicode/ucnv.h>

namespace fl {
namespace i18n {
namespace detail {

// The encoding of the global locale, fixed at the first call in the process. Borrowed; null
// when ICU could not open that encoding.
UConverter* default_converter_master();

// A private converter on the default encoding for one call or one object; the caller owns it
// (wrap it in unique_converter). Throws CvtConversionFailure when none can be had.
UConverter* clone_default_converter();

// The calling thread's own copy, closed when the thread ends. Borrowed: never close it.
UConverter* thread_default_converter();

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
