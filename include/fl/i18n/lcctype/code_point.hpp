#ifndef FL_I18N_LCCTYPE_CODE_POINT_HPP
#define FL_I18N_LCCTYPE_CODE_POINT_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {
namespace lcctype {

// A Unicode scalar value: at most 0x10FFFF and not a surrogate.
FL_I18N_API bool is_valid_utf32(char32_t c);
// Fits one UTF-16 unit; surrogates pass.
FL_I18N_API bool is_valid_uchar(char32_t c);
// Joins a surrogate pair. Anything that is not a high surrogate followed by a low one gives
// U+FFFD, an ordinary character included.
FL_I18N_API char32_t make_utf32_from_uchar(char16_t high, char16_t low);
// Stores one unit, or a pair for a supplementary value, and returns the count. The value is not
// checked: one beyond 0x10FFFF gives a meaningless pair.
FL_I18N_API int make_uchar_from_utf32(char32_t c, char16_t* out);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
