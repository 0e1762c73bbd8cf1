#ifndef OVI18N_TOOL_TEXT_POSITION_HPP
#define OVI18N_TOOL_TEXT_POSITION_HPP

#include <cstddef>
#include <cstdint>

namespace ovi18n_tool {

// Line and column (1-based, in characters) of the decoded text so far.
struct text_position {
    std::uint64_t line = 1;
    std::uint64_t column = 1;

    // Moves past the text: line breaks start a new line, a surrogate pair is one character.
    void advance(char16_t const* text, std::size_t size);
};

}  // namespace ovi18n_tool

#endif
