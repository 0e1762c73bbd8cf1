#ifndef FL_I18N_CODECVT_INVISIBLE_CHAR_CALL_BACKS_HPP
#define FL_I18N_CODECVT_INVISIBLE_CHAR_CALL_BACKS_HPP

#include <unicode/ucnv_err.h>

namespace fl {
namespace i18n {
namespace detail {

// ICU's stop and escape call-backs pass over unmappable default-ignorable characters (such as
// U+200B) in silence. These two treat them like any other unmappable character: a strict
// conversion must not lose text without a word.
void from_u_call_back_stop_with_invisible_chars(void const* context,
                                                UConverterFromUnicodeArgs* arguments,
                                                UChar const* units, int32_t length,
                                                UChar32 code_point, UConverterCallbackReason reason,
                                                UErrorCode* error);

// context is one of ICU's escape options (UCNV_ESCAPE_JAVA, ...), or null for ICU's own form.
void from_u_call_back_escape_with_invisible_chars(
    void const* context, UConverterFromUnicodeArgs* arguments, UChar const* units, int32_t length,
    UChar32 code_point, UConverterCallbackReason reason, UErrorCode* error);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
