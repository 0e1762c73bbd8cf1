#include "text_position.hpp"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace ovi18n_tool {
namespace {

// Line feeds among the units, four units to a 64-bit word: after the XOR a lane is zero exactly
// where a line feed was, and the sum sets a lane's top bit unless its other bits are all zero.
// The lanes' flags are summed by one multiplication into the top lane, which is cheaper than a
// population count where the target has no instruction for it.
std::uint64_t count_line_feeds(char16_t const* first, char16_t const* last) {
    constexpr std::uint64_t line_feeds = 0x000A000A000A000AULL;
    constexpr std::uint64_t low_bits = 0x7FFF7FFF7FFF7FFFULL;
    constexpr std::uint64_t lane_ones = 0x0001000100010001ULL;
    std::uint64_t count = 0;
    for (; last - first >= 4; first += 4) {
        std::uint64_t word;
        std::memcpy(&word, first, sizeof word);
        std::uint64_t const x = word ^ line_feeds;
        std::uint64_t const flags =
            (~(((x & low_bits) + low_bits) | x | low_bits) >> 15) & lane_ones;
        count += (flags * lane_ones) >> 48;
    }
    return count + static_cast<std::uint64_t>(std::count(first, last, u'\n'));
}

}  // namespace

// Runs on every piece, so lines are counted a word at a time and only the text after the last
// line break is walked for the column.
text_span measure_text(char16_t const* text, std::size_t size) {
    char16_t const* const end = text + size;
    char16_t const* const last_break =
        std::find(std::reverse_iterator<char16_t const*>(end),
                  std::reverse_iterator<char16_t const*>(text), u'\n')
            .base();
    text_span span;
    if (last_break != text) {
        span.line_breaks = count_line_feeds(text, last_break);
    }
    // A low surrogate ends a character that its high surrogate already counted.
    span.tail = static_cast<std::uint64_t>(
        std::count_if(last_break, end, [](char16_t unit) { return (unit & 0xFC00) != 0xDC00; }));
    return span;
}

}  // namespace ovi18n_tool
