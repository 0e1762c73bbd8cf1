#ifndef FL_I18N_TIME_ONE_SHOT_CONVERSION_HPP
#define FL_I18N_TIME_ONE_SHOT_CONVERSION_HPP

#include <fl/i18n/ustring.hpp>

#include <unicode/ucnv.h>

#include <cstddef>
#include <string>

namespace fl {
namespace i18n {
namespace detail {

// Single ICU calls over a whole text, for the short texts of the environment and the loader.
// Both return the length the whole result needs, whatever the capacity, and never write a
// terminator that the length does not count.
std::size_t to_unicode_once(UConverter* converter, char16_t* destination, std::size_t capacity,
                            char const* source, std::size_t size);
std::size_t from_unicode_once(UConverter* converter, char* destination, std::size_t capacity,
                              char16_t const* source, std::size_t size);

// Whole conversions on a private clone of the default converter, closed on every path.
ustring default_bytes_to_ustring(char const* source, std::size_t size);
std::string default_ustring_to_bytes(ustring const& source);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
