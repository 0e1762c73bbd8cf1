#ifndef FL_I18N_CODECVT_CONVERSION_LOOPS_HPP
#define FL_I18N_CODECVT_CONVERSION_LOOPS_HPP

#include <fl/i18n/ustring.hpp>

#include "i18n/codecvt/conversion_steps.hpp"

#include <unicode/ucnv.h>

#include <cstddef>
#include <string>

namespace fl {
namespace i18n {
namespace detail {

// Chunked conversions of texts of any length through ICU's 32-bit interface. Each leaves the
// converter reset, also when it throws, so no state carries over to the next text. Failures
// are those of throw_conversion_error.

std::string convert_from_ustring(UConverter* converter, char16_t const* source, std::size_t size,
                                 from_unicode_step_function step);
ustring convert_to_ustring(UConverter* converter, char const* source, std::size_t size,
                           to_unicode_step_function step);

// Store the prefix that fits and return the full length needed. A null destination or a
// capacity of 0 only measures. error is zeroed before each step.
std::size_t convert_from_ustring_into(UConverter* converter, char* destination,
                                      std::size_t capacity, char16_t const* source,
                                      std::size_t size, UErrorCode& error,
                                      from_unicode_step_function step);
std::size_t convert_to_ustring_into(UConverter* converter, char16_t* destination,
                                    std::size_t capacity, char const* source, std::size_t size,
                                    UErrorCode& error, to_unicode_step_function step);

// The exact length of the result, substitutions included; needs no heap.
std::size_t measure_from_ustring(UConverter* converter, char16_t const* source, std::size_t size,
                                 from_unicode_step_function step);
std::size_t measure_to_ustring(UConverter* converter, char const* source, std::size_t size,
                               to_unicode_step_function step);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
