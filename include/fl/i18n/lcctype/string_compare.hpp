#ifndef FL_I18N_LCCTYPE_STRING_COMPARE_HPP
#define FL_I18N_LCCTYPE_STRING_COMPARE_HPP

#include <fl/i18n/export.hpp>

#include <cstddef>

namespace fl {
namespace i18n {

// The strengths of compare. The compatibility forms also equate compatibility variants, such as
// a ligature and its letters.
struct case_sensitive {};
struct case_insensitive {};
struct normalized_case_sensitive {};
struct normalized_case_insensitive {};
struct normalized_compatibility_case_sensitive {};
struct normalized_compatibility_case_insensitive {};

namespace lcctype {

// C-shaped comparisons of NUL-terminated text, answered by ICU as is. An n above 0x7FFFFFFF
// cannot reach ICU: the counted forms then return -1, whatever the strings hold.
FL_I18N_API int strcmp(char16_t const* a, char16_t const* b);
FL_I18N_API int strncmp(char16_t const* a, char16_t const* b, std::size_t n);
FL_I18N_API int strcasecmp(char16_t const* a, char16_t const* b);
FL_I18N_API int strncasecmp(char16_t const* a, char16_t const* b, std::size_t n);

// Negative, 0 or positive; sizes in UTF-16 units. A size above 0x3FFFFFFF throws
// CtypeSizeTooLarge (b's first), an ICU failure CtypeStrCompFailure. case_sensitive orders by
// code unit, not by code point. ICU answers a null side as it does: 0 for the sensitive forms,
// a failure for the others; the compatibility forms pass an empty side on as null.
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, case_sensitive tag);
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, case_insensitive tag);
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, normalized_case_sensitive tag);
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, normalized_case_insensitive tag);
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, normalized_compatibility_case_sensitive tag);
FL_I18N_API int compare(char16_t const* a, std::size_t a_size, char16_t const* b,
                        std::size_t b_size, normalized_compatibility_case_insensitive tag);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
