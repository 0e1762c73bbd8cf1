#include "i18n/codecvt/ascii_runs.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace fl {
namespace i18n {
namespace detail {

namespace {

constexpr std::int32_t ascii_count = 0x80;
// A run is worth copying past ICU from this many elements on (see find_ascii_run): a call into
// ICU costs about as much as converting that much ASCII inside one.
constexpr std::size_t min_run = 64;
// A search for such a run looks this far; where it finds none, ICU is given that much and
// skipped_windows times as much again before the next search.
constexpr std::size_t search_window = 256;
constexpr std::size_t skipped_windows = 3;

// The high bits of 8 bytes or 4 UTF-16 units: any set bit is an element above 0x7F.
constexpr std::uint64_t byte_high_bits = 0x8080808080808080ULL;
constexpr std::uint64_t unit_high_bits = 0xFF80FF80FF80FF80ULL;

template <class Unit>
struct unit_traits;

template <>
struct unit_traits<char> {
    static constexpr std::size_t per_word = 8;
    static constexpr std::uint64_t high_bits = byte_high_bits;
    static bool is_ascii(char c) noexcept { return static_cast<unsigned char>(c) < 0x80; }
};

template <>
struct unit_traits<char16_t> {
    static constexpr std::size_t per_word = 4;
    static constexpr std::uint64_t high_bits = unit_high_bits;
    static bool is_ascii(char16_t c) noexcept { return c < 0x80; }
};

// The high bits of the four words of a block read from source, without alignment.
template <class Unit>
void high_bits_of_block(Unit const* source, std::uint64_t (&bits)[4]) noexcept {
    std::memcpy(bits, source, sizeof bits);
    for (std::uint64_t& word : bits) {
        word &= unit_traits<Unit>::high_bits;
    }
}

template <class Unit>
bool is_ascii_word(Unit const* source) noexcept {
    std::uint64_t word;
    std::memcpy(&word, source, sizeof word);
    return (word & unit_traits<Unit>::high_bits) == 0;
}

template <class Unit>
bool is_ascii_block(Unit const* source) noexcept {
    std::uint64_t a, b, c, d;
    std::memcpy(&a, source, sizeof a);
    std::memcpy(&b, source + unit_traits<Unit>::per_word, sizeof b);
    std::memcpy(&c, source + 2 * unit_traits<Unit>::per_word, sizeof c);
    std::memcpy(&d, source + 3 * unit_traits<Unit>::per_word, sizeof d);
    return ((a | b | c | d) & unit_traits<Unit>::high_bits) == 0;
}

template <class Unit>
constexpr std::size_t block_of() noexcept {
    return 4 * unit_traits<Unit>::per_word;
}

// How many elements of a block come before its first non-ASCII one. The words are read as
// stored, lowest address in the lowest bits, as on every target of this library.
template <class Unit>
std::size_t ascii_prefix_of_block(Unit const* source) noexcept {
    static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "words are read little-endian");
    std::uint64_t bits[4];
    high_bits_of_block(source, bits);
    for (std::size_t k = 0; k < 4; ++k) {
        if (bits[k] != 0) {
            return k * unit_traits<Unit>::per_word +
                   static_cast<std::size_t>(__builtin_ctzll(bits[k])) / (8 * sizeof(Unit));
        }
    }
    return block_of<Unit>();
}

// Whole blocks are tested with word arithmetic and converted by a fixed-length loop that the
// compiler turns into vector instructions (source and target never overlap, and say so); of the
// block that holds the first non-ASCII element only the part before it is stored. The tail goes
// one by one.
template <class From, class To>
std::size_t copy_run(From const* __restrict source, std::size_t count,
                     To* __restrict target) noexcept {
    constexpr std::size_t block = block_of<From>();
    std::size_t i = 0;
    for (; i + block <= count; i += block) {
        if (!is_ascii_block(source + i)) {
            std::size_t const ascii = ascii_prefix_of_block(source + i);
            for (std::size_t k = 0; k < ascii; ++k) {
                target[i + k] = static_cast<To>(source[i + k]);
            }
            return i + ascii;
        }
        for (std::size_t k = 0; k < block; ++k) {
            target[i + k] = static_cast<To>(source[i + k]);
        }
    }
    for (; i < count && unit_traits<From>::is_ascii(source[i]); ++i) {
        target[i] = static_cast<To>(source[i]);
    }
    return i;
}

// Where the block's last non-ASCII element stands; the block must hold one.
template <class Unit>
std::size_t last_non_ascii_of_block(Unit const* source) noexcept {
    std::uint64_t bits[4];
    high_bits_of_block(source, bits);
    std::size_t k = 3;
    while (k > 0 && bits[k] == 0) {
        --k;
    }
    return k * unit_traits<Unit>::per_word +
           static_cast<std::size_t>(63 - __builtin_clzll(bits[k])) / (8 * sizeof(Unit));
}

// The start of the first ASCII run of min_run elements or more that holds a whole block, or of
// the ASCII run that ends the text. Blocks are probed whole, one test each, and only a clean
// block looks back for where its run began, so the search costs little beside ICU's own work.
// Where ICU stops changes nothing in the result, only how much of the text it converts.
template <class Unit>
std::size_t find_run(Unit const* source, std::size_t count) noexcept {
    constexpr std::size_t block = block_of<Unit>();
    std::size_t const limit = std::min(count, search_window);
    bool in_run = false;
    std::size_t run_start = 0;
    std::size_t i = 0;
    for (; i + block <= limit; i += block) {
        // The first word is tested alone first: in text that is not ASCII it mostly settles
        // the block with one load.
        if (!is_ascii_word(source + i) || !is_ascii_block(source + i)) {
            // A run that holds a clean block may still reach its length in this one.
            if (in_run && i + ascii_prefix_of_block(source + i) - run_start >= min_run) {
                return run_start;
            }
            in_run = false;
            continue;
        }
        if (!in_run) {
            in_run = true;
            run_start = i == 0 ? 0 : i - block + last_non_ascii_of_block(source + i - block) + 1;
        }
        if (i + block - run_start >= min_run) {
            return run_start;
        }
    }
    if (limit < count) {
        // Text with no long runs: ICU takes this window and three more unsearched, up to an
        // ASCII element, so that searching costs a quarter of what ICU does with such text.
        std::size_t end = std::min(count, limit + skipped_windows * search_window);
        while (end < count && !unit_traits<Unit>::is_ascii(source[end])) {
            ++end;
        }
        return end;
    }
    std::size_t run = in_run ? i - run_start : 0;
    for (; i < count; ++i) {
        run = unit_traits<Unit>::is_ascii(source[i]) ? run + 1 : 0;
    }
    return count - run;
}

// A table-driven single-byte converter may map a sequence of characters to one (its extension
// table); ICU then holds a character back, unconverted, to see what follows. The conversion core
// hands ICU text that ends in an ASCII element and copies the next run itself, which is right
// only if ICU never holds an ASCII element back: each is fed alone, without flushing.
bool holds_no_ascii_back(UConverter* converter) {
    bool none = true;
    for (std::int32_t c = 0; none && c < ascii_count; ++c) {
        char const byte = static_cast<char>(c);
        char const* byte_source = &byte;
        UChar unit_out[2];
        UChar* unit_target = unit_out;
        UErrorCode error = U_ZERO_ERROR;
        ucnv_toUnicode(converter, &unit_target, unit_out + 2, &byte_source, &byte + 1, nullptr,
                       false, &error);
        none = error <= U_ZERO_ERROR && unit_target == unit_out + 1 &&
               ucnv_toUCountPending(converter, &error) == 0;
        UChar const unit = static_cast<UChar>(c);
        UChar const* unit_source = &unit;
        char byte_out[2];
        char* byte_target = byte_out;
        error = U_ZERO_ERROR;
        ucnv_fromUnicode(converter, &byte_target, byte_out + 2, &unit_source, &unit + 1, nullptr,
                         false, &error);
        none = none && error <= U_ZERO_ERROR && byte_target == byte_out + 1 &&
               ucnv_fromUCountPending(converter, &error) == 0;
        ucnv_reset(converter);
    }
    return none;
}

}  // namespace

bool is_ascii_transparent(UConverter* converter) {
    switch (ucnv_getType(converter)) {
        case UCNV_UTF8:
        case UCNV_US_ASCII:
        case UCNV_LATIN_1:
        case UCNV_SBCS:
            break;
        default:
            return false;
    }
    // These types keep no state between characters and none of their characters starts with an
    // ASCII byte, so the 128 bytes converted as one text answer for each byte alone.
    char bytes[ascii_count];
    UChar units[ascii_count];
    for (std::int32_t c = 0; c < ascii_count; ++c) {
        bytes[c] = static_cast<char>(c);
        units[c] = static_cast<UChar>(c);
    }
    UChar decoded[ascii_count + 1];
    char encoded[ascii_count + 1];
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const decoded_length =
        ucnv_toUChars(converter, decoded, ascii_count + 1, bytes, ascii_count, &error);
    bool same = error <= U_ZERO_ERROR && decoded_length == ascii_count;
    error = U_ZERO_ERROR;
    std::int32_t const encoded_length =
        ucnv_fromUChars(converter, encoded, ascii_count + 1, units, ascii_count, &error);
    same = same && error <= U_ZERO_ERROR && encoded_length == ascii_count;
    for (std::int32_t c = 0; same && c < ascii_count; ++c) {
        same = decoded[c] == units[c] && encoded[c] == bytes[c];
    }
    ucnv_reset(converter);
    return same && (ucnv_getType(converter) != UCNV_SBCS || holds_no_ascii_back(converter));
}

std::size_t copy_ascii(char const* source, std::size_t count, char16_t* target) noexcept {
    // Only ASCII is ever stored, so the sign of char does not matter.
    return copy_run(source, count, target);
}

std::size_t copy_ascii(char16_t const* source, std::size_t count, char* target) noexcept {
    return copy_run(source, count, target);
}

std::size_t find_ascii_run(char const* source, std::size_t count) noexcept {
    return find_run(source, count);
}

std::size_t find_ascii_run(char16_t const* source, std::size_t count) noexcept {
    return find_run(source, count);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
