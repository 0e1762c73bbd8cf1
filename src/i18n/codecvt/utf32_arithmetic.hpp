#ifndef FL_I18N_CODECVT_UTF32_ARITHMETIC_HPP
#define FL_I18N_CODECVT_UTF32_ARITHMETIC_HPP

#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <string>

namespace fl {
namespace i18n {
namespace detail {

// UTF-32 <-> UTF-16 by hand, for wchar_t and char32_t alike (both 32 bits here). Bad input is
// replaced or passed through; nothing fails.

// Units needed for values: one each, two for each value at or above 0x10000.
template <class Unit32>
std::size_t utf16_length(Unit32 const* source, std::size_t size);

// Buffer form: stores what fits and returns the length needed. A null or empty destination
// only measures.
template <class Unit32>
std::size_t utf32_to_utf16(char16_t* destination, std::size_t capacity, Unit32 const* source,
                           std::size_t size);

template <class Unit32>
ustring widen_to_ustring(Unit32 const* source, std::size_t size);

// Values needed for units: a surrogate pair counts one, every other unit one.
std::size_t utf32_length(char16_t const* source, std::size_t size);

template <class Unit32>
std::size_t utf16_to_utf32(Unit32* destination, std::size_t capacity, char16_t const* source,
                           std::size_t size);

// Measures first, then fills a string of exactly that length.
template <class Unit32>
std::basic_string<Unit32> narrow_exactly(char16_t const* source, std::size_t size);

// Allocates one value per unit, fills, and cuts the string to size.
template <class Unit32>
std::basic_string<Unit32> narrow_at_most(char16_t const* source, std::size_t size);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
