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

// Where ICU should stop in [source, source + count): at the start of an ASCII run worth copying
// past ICU (64 elements or more, or the run that ends the text), or, when a bounded search finds
// none, at an ASCII element further on; count when there is none. Always count or the position
// of an ASCII element, so that ICU, given that element too, holds nothing back.
std::size_t find_ascii_run(char const* source, std::size_t count) noexcept;
std::size_t find_ascii_run(char16_t const* source, std::size_t count) noexcept;

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
