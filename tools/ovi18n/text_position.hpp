#ifndef OVI18N_TOOL_TEXT_POSITION_HPP
#define OVI18N_TOOL_TEXT_POSITION_HPP

#include <cstddef>
#include <cstdint>

namespace ovi18n_tool {

// What a stretch of text does to a position, so that stretches measured apart (on other
// threads) can be applied in order.
struct text_span {
    std::uint64_t line_breaks = 0;
    std::uint64_t tail = 0;  // characters after the last line break, or in all without one
};

// Line breaks start a new line; a surrogate pair is one character.
text_span measure_text(char16_t const* text, std::size_t size);

// Line and column (1-based, in characters) of the decoded text so far.
struct text_position {
    std::uint64_t line = 1;
    std::uint64_t column = 1;

    void advance(text_span const& span) {
        if (span.line_breaks != 0) {
            line += span.line_breaks;
            column = 1;
        }
        column += span.tail;
    }
    void advance(char16_t const* text, std::size_t size) { advance(measure_text(text, size)); }
};

}  // namespace ovi18n_tool

#endif
