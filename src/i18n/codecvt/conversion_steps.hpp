#ifndef FL_I18N_CODECVT_CONVERSION_STEPS_HPP
#define FL_I18N_CODECVT_CONVERSION_STEPS_HPP

#include <unicode/ucnv.h>

#include <cstddef>

namespace fl {
namespace i18n {
namespace detail {

// One ICU call of a direction. Each zeroes the error word first and returns how far the
// target cursor moved, in bytes or UTF-16 units.
using from_unicode_step_function = std::size_t (*)(UConverter* converter, char** target,
                                                   char const* target_limit,
                                                   char16_t const** source,
                                                   char16_t const* source_limit, bool flush,
                                                   UErrorCode* error);
using to_unicode_step_function = std::size_t (*)(UConverter* converter, char16_t** target,
                                                 char16_t const* target_limit, char const** source,
                                                 char const* source_limit, bool flush,
                                                 UErrorCode* error);

std::size_t from_unicode_step(UConverter* converter, char** target, char const* target_limit,
                              char16_t const** source, char16_t const* source_limit, bool flush,
                              UErrorCode* error);

std::size_t to_unicode_step(UConverter* converter, char16_t** target, char16_t const* target_limit,
                            char const** source, char const* source_limit, bool flush,
                            UErrorCode* error);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
