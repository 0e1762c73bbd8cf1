#include "i18n/codecvt/ascii_runs.hpp"

#include <cstdint>

namespace fl {
namespace i18n {
namespace detail {

namespace {

constexpr std::size_t block = 16;
constexpr std::int32_t ascii_count = 0x80;

bool is_ascii(unsigned char c) noexcept {
    return c < 0x80;
}

bool is_ascii(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x80;
}

bool is_ascii(char16_t c) noexcept {
    return c < 0x80;
}

// Blocks of 16 are tested and copied whole, each a fixed-length loop the compiler turns into
// vector instructions; the tail and the block holding the first non-ASCII element go one by one.
template <class From, class To>
std::size_t copy_run(From const* source, std::size_t count, To* target) noexcept {
    std::size_t i = 0;
    for (; i + block <= count; i += block) {
        unsigned bits = 0;
        for (std::size_t k = 0; k < block; ++k) {
            bits |= static_cast<unsigned>(source[i + k]) & ~0x7Fu;
        }
        if (bits != 0) {
            break;
        }
        for (std::size_t k = 0; k < block; ++k) {
            target[i + k] = static_cast<To>(source[i + k]);
        }
    }
    for (; i < count && is_ascii(source[i]); ++i) {
        target[i] = static_cast<To>(source[i]);
    }
    return i;
}

template <class Unit>
std::size_t find_run(Unit const* source, std::size_t count, std::size_t min_run) noexcept {
    std::size_t run = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (!is_ascii(source[i])) {
            run = 0;
        } else if (++run == min_run) {
            return i + 1 - min_run;
        }
    }
    return count - run;
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
    return same;
}

std::size_t copy_ascii(char const* source, std::size_t count, char16_t* target) noexcept {
    return copy_run(reinterpret_cast<unsigned char const*>(source), count, target);
}

std::size_t copy_ascii(char16_t const* source, std::size_t count, char* target) noexcept {
    return copy_run(source, count, target);
}

std::size_t find_ascii_run(char const* source, std::size_t count, std::size_t min_run) noexcept {
    return find_run(source, count, min_run);
}

std::size_t find_ascii_run(char16_t const* source, std::size_t count,
                           std::size_t min_run) noexcept {
    return find_run(source, count, min_run);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
