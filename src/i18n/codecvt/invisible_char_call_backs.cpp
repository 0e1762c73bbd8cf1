#include "i18n/codecvt/invisible_char_call_backs.hpp"

namespace fl {
namespace i18n {
namespace detail {

namespace {

// ICU's call-backs skip a default-ignorable character only when it is reported as unassigned;
// reported as irregular it takes the same road as every other character.
UConverterCallbackReason visible(UConverterCallbackReason reason) {
    return reason == UCNV_UNASSIGNED ? UCNV_IRREGULAR : reason;
}

}  // namespace

void from_u_call_back_stop_with_invisible_chars(void const* context,
                                                UConverterFromUnicodeArgs* arguments,
                                                UChar const* units, int32_t length,
                                                UChar32 code_point, UConverterCallbackReason reason,
                                                UErrorCode* error) {
    UCNV_FROM_U_CALLBACK_STOP(context, arguments, units, length, code_point, visible(reason),
                              error);
}

void from_u_call_back_escape_with_invisible_chars(
    void const* context, UConverterFromUnicodeArgs* arguments, UChar const* units, int32_t length,
    UChar32 code_point, UConverterCallbackReason reason, UErrorCode* error) {
    UCNV_FROM_U_CALLBACK_ESCAPE(context, arguments, units, length, code_point, visible(reason),
                                error);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
