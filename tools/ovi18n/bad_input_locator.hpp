#ifndef OVI18N_TOOL_BAD_INPUT_LOCATOR_HPP
#define OVI18N_TOOL_BAD_INPUT_LOCATOR_HPP

#include <cstddef>
#include <string>

namespace ovi18n_tool {

// Where a failed decoding went wrong, once the library's stream converter has refused a
// sequence that ends at `end` inside `window` (the failed piece with some bytes before it).
struct bad_input {
    std::size_t start = 0;  // index of the sequence's first byte in the window
    std::string bytes;
};

// Decodes the window again with ICU directly and finds the refused sequence that ends at `end`.
// A window that starts inside a character resynchronises long before the end, so a false error
// near its start doesn't count. Without a match, the sequence is taken as the one byte before
// `end`.
bad_input locate_bad_input(std::string const& encoding, char const* window, std::size_t end);

}  // namespace ovi18n_tool

#endif
