#include <fl/i18n/codecvt/codecvt_ascii.hpp>

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"

#include <algorithm>

namespace fl {
namespace i18n {

namespace {

constexpr char16_t wide_replacement = 0xFFFD;
// The low byte of 0xFFFF: not ASCII, so it cannot pass for a character of the text.
constexpr char narrow_replacement = static_cast<char>(0xFF);

bool is_bad(char byte) {
    return (static_cast<unsigned char>(byte) & 0x80) != 0;
}
bool is_bad(char16_t unit) {
    return (unit & 0xFF80) != 0;
}

template <class Unit>
void check_all(Unit const* source, std::size_t size) {
    if (std::any_of(source, source + size, [](Unit unit) { return is_bad(unit); })) {
        fl::detail::throw_exception(CvtInvalidCharacter());
    }
}

char16_t widen(char byte, bool lenient) {
    if (!is_bad(byte)) {
        return static_cast<char16_t>(byte);
    }
    if (!lenient) {
        fl::detail::throw_exception(CvtInvalidCharacter());
    }
    return wide_replacement;
}

char narrow(char16_t unit, bool lenient) {
    if (!is_bad(unit)) {
        return static_cast<char>(unit);
    }
    if (!lenient) {
        fl::detail::throw_exception(CvtInvalidCharacter());
    }
    return narrow_replacement;
}

template <class Unit>
std::size_t ascii_size(Unit const* source, std::size_t size, bool lenient) {
    if (source == nullptr || size == 0) {
        return 0;
    }
    if (!lenient) {
        check_all(source, size);
    }
    return size;
}

}  // namespace

codecvt_ascii_to_ustring::~codecvt_ascii_to_ustring() = default;

std::size_t codecvt_ascii_to_ustring::do_get_destination_size(char const* source,
                                                              std::size_t source_size) const {
    return ascii_size(source, source_size, lenient_);
}

std::basic_string<char16_t> codecvt_ascii_to_ustring::do_convert(char const* source,
                                                                 std::size_t source_size) const {
    std::basic_string<char16_t> result;
    if (source == nullptr || source_size == 0) {
        return result;
    }
    result.resize(source_size);
    for (std::size_t i = 0; i < source_size; ++i) {
        result[i] = widen(source[i], lenient_);
    }
    return result;
}

std::size_t codecvt_ascii_to_ustring::do_convert(char16_t* destination,
                                                 std::size_t destination_size, char const* source,
                                                 std::size_t source_size) const {
    if (destination == nullptr || source == nullptr) {
        return 0;
    }
    std::size_t const count = std::min(destination_size, source_size);
    // Backwards: each wide unit lands at or behind its byte, so the source may share the
    // destination's storage.
    for (std::size_t i = count; i-- > 0;) {
        destination[i] = widen(source[i], lenient_);
    }
    return count;
}

codecvt_ustring_to_ascii::~codecvt_ustring_to_ascii() = default;

std::size_t codecvt_ustring_to_ascii::do_get_destination_size(char16_t const* source,
                                                              std::size_t source_size) const {
    return ascii_size(source, source_size, lenient_);
}

std::string codecvt_ustring_to_ascii::do_convert(char16_t const* source,
                                                 std::size_t source_size) const {
    std::string result;
    if (source == nullptr || source_size == 0) {
        return result;
    }
    result.resize(source_size);
    for (std::size_t i = 0; i < source_size; ++i) {
        result[i] = narrow(source[i], lenient_);
    }
    return result;
}

std::size_t codecvt_ustring_to_ascii::do_convert(char* destination, std::size_t destination_size,
                                                 char16_t const* source,
                                                 std::size_t source_size) const {
    if (destination == nullptr || source == nullptr) {
        return 0;
    }
    std::size_t const count = std::min(destination_size, source_size);
    for (std::size_t i = 0; i < count; ++i) {
        destination[i] = narrow(source[i], lenient_);
    }
    return count;
}

}  // namespace i18n
}  // namespace fl
