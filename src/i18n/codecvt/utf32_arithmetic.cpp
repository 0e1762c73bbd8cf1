#include "i18n/codecvt/utf32_arithmetic.hpp"

#include <cstdint>

namespace fl {
namespace i18n {
namespace detail {

namespace {

constexpr std::uint32_t first_supplementary = 0x10000;
// Every source this short fits a result of this many units without measuring.
constexpr std::size_t short_source = 1024;
constexpr std::size_t short_result = 2048;
constexpr char16_t replacement = 0xFFFD;

bool is_high(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}
bool is_low(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

template <class Unit32>
std::uint32_t value_of(Unit32 unit) {
    return static_cast<std::uint32_t>(unit);
}

char16_t high_unit(std::uint32_t value) {
    return static_cast<char16_t>((value >> 10) + 0xD7C0);
}
char16_t low_unit(std::uint32_t value) {
    return static_cast<char16_t>((value & 0x3FF) + 0xDC00);
}

// Writes all of source; the destination holds the worst case.
template <class Unit32>
std::size_t widen_unchecked(char16_t* destination, Unit32 const* source, std::size_t size) {
    char16_t* out = destination;
    for (std::size_t i = 0; i < size; ++i) {
        std::uint32_t const value = value_of(source[i]);
        if (value < first_supplementary) {
            *out++ = static_cast<char16_t>(value);
        } else {
            *out++ = high_unit(value);
            *out++ = low_unit(value);
        }
    }
    return static_cast<std::size_t>(out - destination);
}

}  // namespace

template <class Unit32>
std::size_t utf16_length(Unit32 const* source, std::size_t size) {
    std::size_t length = size;
    for (std::size_t i = 0; i < size; ++i) {
        if (value_of(source[i]) >= first_supplementary) {
            ++length;
        }
    }
    return length;
}

template <class Unit32>
std::size_t utf32_to_utf16(char16_t* destination, std::size_t capacity, Unit32 const* source,
                           std::size_t size) {
    if (source == nullptr || size == 0) {
        return 0;
    }
    if (destination == nullptr || capacity == 0) {
        return utf16_length(source, size);
    }
    std::size_t stored = 0;
    std::size_t i = 0;
    for (; i < size && stored < capacity; ++i) {
        std::uint32_t const value = value_of(source[i]);
        if (value < first_supplementary) {
            destination[stored++] = static_cast<char16_t>(value);
            continue;
        }
        destination[stored] = high_unit(value);
        if (stored + 1 == capacity) {
            // The high unit stays behind uncounted; the value is counted whole below.
            break;
        }
        destination[stored + 1] = low_unit(value);
        stored += 2;
    }
    return stored + utf16_length(source + i, size - i);
}

template <class Unit32>
ustring widen_to_ustring(Unit32 const* source, std::size_t size) {
    if (source == nullptr || size == 0) {
        return ustring();
    }
    if (size <= short_source) {
        // Memory for one pass: no measuring walk for short texts.
        ustring result(short_result, char16_t());
        result.erase(widen_unchecked(&result[0], source, size));
        return result;
    }
    ustring result(utf16_length(source, size), char16_t());
    widen_unchecked(&result[0], source, size);
    return result;
}

std::size_t utf32_length(char16_t const* source, std::size_t size) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < size; ++i, ++length) {
        if (is_high(source[i]) && i + 1 < size && is_low(source[i + 1])) {
            ++i;
        }
    }
    return length;
}

template <class Unit32>
std::size_t utf16_to_utf32(Unit32* destination, std::size_t capacity, char16_t const* source,
                           std::size_t size) {
    if (source == nullptr || size == 0) {
        return 0;
    }
    if (destination == nullptr || capacity == 0) {
        return utf32_length(source, size);
    }
    std::size_t stored = 0;
    std::size_t i = 0;
    while (i < size && stored < capacity) {
        char16_t const unit = source[i];
        std::uint32_t value = unit;
        if (is_high(unit) && i + 1 < size && is_low(source[i + 1])) {
            value = unit * 0x400u + source[i + 1] - 0x35FDC00u;
            i += 2;
        } else {
            if (is_high(unit) || is_low(unit)) {
                value = replacement;
            }
            ++i;
        }
        destination[stored++] = static_cast<Unit32>(value);
    }
    return stored + utf32_length(source + i, size - i);
}

template <class Unit32>
std::basic_string<Unit32> narrow_exactly(char16_t const* source, std::size_t size) {
    std::basic_string<Unit32> result(utf32_length(source, size), Unit32());
    if (!result.empty()) {
        utf16_to_utf32(&result[0], result.size(), source, size);
    }
    return result;
}

template <class Unit32>
std::basic_string<Unit32> narrow_at_most(char16_t const* source, std::size_t size) {
    std::basic_string<Unit32> result(size, Unit32());
    if (size != 0) {
        result.erase(utf16_to_utf32(&result[0], size, source, size));
    }
    return result;
}

template std::size_t utf16_length(wchar_t const*, std::size_t);
template std::size_t utf16_length(char32_t const*, std::size_t);
template std::size_t utf32_to_utf16(char16_t*, std::size_t, wchar_t const*, std::size_t);
template std::size_t utf32_to_utf16(char16_t*, std::size_t, char32_t const*, std::size_t);
template ustring widen_to_ustring(wchar_t const*, std::size_t);
template ustring widen_to_ustring(char32_t const*, std::size_t);
template std::size_t utf16_to_utf32(wchar_t*, std::size_t, char16_t const*, std::size_t);
template std::size_t utf16_to_utf32(char32_t*, std::size_t, char16_t const*, std::size_t);
template std::wstring narrow_exactly<wchar_t>(char16_t const*, std::size_t);
template std::u32string narrow_exactly<char32_t>(char16_t const*, std::size_t);
template std::wstring narrow_at_most<wchar_t>(char16_t const*, std::size_t);
template std::u32string narrow_at_most<char32_t>(char16_t const*, std::size_t);

}  // namespace detail
}  // namespace i18n
}  // namespace fl
