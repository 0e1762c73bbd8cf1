#ifndef FL_I18N_LCCTYPE_ASCII_CLASS_HPP
#define FL_I18N_LCCTYPE_ASCII_CLASS_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {
namespace lcctype {

// ASCII-only tests for callers that must not pay for a call into ICU. Anything beyond 0x7F is
// false, whatever its low byte.
FL_I18N_API bool isascii_character(char32_t c);
FL_I18N_API bool isspace_ascii(char32_t c);
FL_I18N_API bool isalpha_ascii(char32_t c);
FL_I18N_API bool isdigit_ascii(char32_t c);
FL_I18N_API bool isalnum_ascii(char32_t c);
FL_I18N_API bool islower_ascii(char32_t c);
FL_I18N_API bool isupper_ascii(char32_t c);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
