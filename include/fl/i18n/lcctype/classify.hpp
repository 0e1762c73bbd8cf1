#ifndef FL_I18N_LCCTYPE_CLASSIFY_HPP
#define FL_I18N_LCCTYPE_CLASSIFY_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {
namespace lcctype {

// The C character functions for code points, answered from the Unicode character database.
// The answers are the same in every locale; no argument is validated first.
FL_I18N_API bool iscntrl(char32_t c);
// The White_Space property, no-break spaces included.
FL_I18N_API bool isspace(char32_t c);
// White space at which a line may break: no-break spaces are excluded.
FL_I18N_API bool isbreakable_space(char32_t c);
FL_I18N_API bool isalpha(char32_t c);
FL_I18N_API bool isdigit(char32_t c);
FL_I18N_API bool isalnum(char32_t c);
// General categories P only; symbols are not punctuation here.
FL_I18N_API bool ispunct(char32_t c);
FL_I18N_API bool isxdigit(char32_t c);
// Letters, marks, numbers, punctuation and symbols; false for format and private-use characters.
FL_I18N_API bool isgraph(char32_t c);
FL_I18N_API bool isprint(char32_t c);
FL_I18N_API bool islower(char32_t c);
FL_I18N_API bool isupper(char32_t c);
// Simple (one to one) case mappings.
FL_I18N_API char32_t tolower(char32_t c);
FL_I18N_API char32_t toupper(char32_t c);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
