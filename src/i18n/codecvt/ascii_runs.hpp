#ifndef FL_I18N_CODECVT_ASCII_RUNS_HPP
#define FL_I18N_CODECVT_ASCII_RUNS_HPP

#include <unicode/ucnv.h>

#include <cstddef>

namespace fl {
namespace i18n {
namespace detail {

// Whether ASCII text may bypass ICU on this converter: its encoding is stateless (ICU's type is
// UTF-8, US-ASCII, Latin-1 or a single-byte table) and ICU's own tables map every one of
// 0x00-0x7F to itself in both directions. Asked once, when the converter is opened, before any
// call-back is set; leaves the converter reset.
bool is_ascii_transparent(UConverter* converter);

// Copy the leading ASCII elements of source (at most count) to target and return how many;
// the first element above 0x7F stops it. Written so that the compiler vectorises it.
std::size_t copy_ascii(char const* source, std::size_t count, char16_t* target) noexcept;
std::size_t copy_ascii(char16_t const* source, std::size_t count, char* target) noexcept;

// Where, in [source, source + count), a run of ASCII starts that is worth copying past ICU: 32
// bytes or 16 units at least, or the run that ends the text; count when there is none. A call
// into ICU costs more than converting a few characters inside one.
std::size_t find_ascii_run(char const* source, std::size_t count) noexcept;
std::size_t find_ascii_run(char16_t const* source, std::size_t count) noexcept;

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
