#include <fl/i18n/codecvt/codecvt_modified_utf8.hpp>

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/icu_error_family.hpp"

#include <unicode/ustring.h>

#include <algorithm>
#include <string>

namespace fl {
namespace i18n {

namespace {

constexpr std::size_t icu_max_length = 0x7FFFFFFF;
constexpr std::size_t icu_max_utf16_source = 0x3FFFFFFF;
constexpr UChar32 replacement = 0xFFFD;
// A unit becomes at most 3 bytes: a pair's halves are encoded one by one, NUL takes 2.
constexpr std::size_t max_bytes_per_unit = 3;

void check_sizes(std::size_t size, std::size_t capacity) {
    if (size > icu_max_length || capacity > icu_max_length) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
}

bool is_success(UErrorCode error) {
    return !detail::is_icu_failure(error);
}

std::size_t to_modified_utf8(char* destination, std::size_t capacity, char16_t const* source,
                             std::size_t size) {
    check_sizes(size, capacity);
    UErrorCode error = U_ZERO_ERROR;
    int32_t length = 0;
    u_strToJavaModifiedUTF8(destination, static_cast<int32_t>(capacity), &length, source,
                            static_cast<int32_t>(size), &error);
    if (is_success(error)) {
        return static_cast<std::size_t>(length);
    }
    if (size > icu_max_utf16_source) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
    detail::throw_conversion_error(error);
}

// A whole conversion in one fill, into a result sized by the most the source can become. Only a
// result bound beyond ICU's 32-bit counts, which a source of that size could not fill anyway,
// can take a second, exact fill.
template <class To, class From>
std::basic_string<To> fill_whole(From const* source, std::size_t size, std::size_t bound,
                                 std::size_t (*fill)(To*, std::size_t, From const*, std::size_t)) {
    std::basic_string<To> result(std::min(bound, icu_max_length), To());
    std::size_t const needed = fill(&result[0], result.size(), source, size);
    if (needed <= result.size()) {
        result.resize(needed);
        return result;
    }
    result.assign(needed, To());
    fill(&result[0], needed, source, size);
    return result;
}

std::size_t icu_from_modified_utf8(char16_t* destination, std::size_t capacity, char const* source,
                                   std::size_t size) {
    UErrorCode error = U_ZERO_ERROR;
    int32_t length = 0;
    u_strFromJavaModifiedUTF8WithSub(destination, static_cast<int32_t>(capacity), &length, source,
                                     static_cast<int32_t>(size), replacement, nullptr, &error);
    if (is_success(error)) {
        return static_cast<std::size_t>(length);
    }
    detail::throw_conversion_error(error);
}

bool is_continuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// ICU's decoder may read one byte behind its source when the text ends in a multi-byte
// sequence, and then also decodes that byte. Text that ends in an ASCII byte is safe, so only the
// last sequence, from its last byte that is not a continuation byte, is converted apart: from a
// copy that ends in a sentinel 'A', whose own unit is dropped again. No sequence spans a
// byte that is not a continuation byte, so the two parts give what the whole would; the head
// may be read one byte too far, but that byte is the tail's first and lies inside the source.
std::size_t from_modified_utf8(char16_t* destination, std::size_t capacity, char const* source,
                               std::size_t size) {
    check_sizes(size, capacity);
    if (size == 0 || static_cast<unsigned char>(source[size - 1]) < 0x80) {
        return icu_from_modified_utf8(destination, capacity, source, size);
    }
    std::size_t split = size - 1;
    while (split > 0 && is_continuation(source[split])) {
        --split;
    }
    std::size_t const head = icu_from_modified_utf8(destination, capacity, source, split);
    std::string tail(source + split, size - split);
    tail += 'A';
    std::u16string units(tail.size(), u'\0');
    std::size_t const tail_units =
        icu_from_modified_utf8(&units[0], units.size(), tail.data(), tail.size()) - 1;
    std::size_t const needed = head + tail_units;
    if (head < capacity) {
        std::size_t const stored = std::min(tail_units, capacity - head);
        std::char_traits<char16_t>::copy(destination + head, units.data(), stored);
        if (needed < capacity) {
            destination[needed] = u'\0';  // terminated when there is room, as ICU does
        }
    }
    return needed;
}

}  // namespace

codecvt_modified_utf8_to_ustring::~codecvt_modified_utf8_to_ustring() = default;

std::size_t codecvt_modified_utf8_to_ustring::do_get_destination_size(
    char const* source, std::size_t source_size) const {
    return from_modified_utf8(nullptr, 0, source, source_size);
}

std::basic_string<char16_t> codecvt_modified_utf8_to_ustring::do_convert(
    char const* source, std::size_t source_size) const {
    // A byte gives at most one unit.
    return fill_whole<char16_t>(source, source_size, source_size, &from_modified_utf8);
}

std::size_t codecvt_modified_utf8_to_ustring::do_convert(char16_t* destination,
                                                         std::size_t destination_size,
                                                         char const* source,
                                                         std::size_t source_size) const {
    return from_modified_utf8(destination, destination_size, source, source_size);
}

codecvt_ustring_to_modified_utf8::~codecvt_ustring_to_modified_utf8() = default;

std::size_t codecvt_ustring_to_modified_utf8::do_get_destination_size(
    char16_t const* source, std::size_t source_size) const {
    return to_modified_utf8(nullptr, 0, source, source_size);
}

std::string codecvt_ustring_to_modified_utf8::do_convert(char16_t const* source,
                                                         std::size_t source_size) const {
    return fill_whole<char>(source, source_size, source_size * max_bytes_per_unit,
                            &to_modified_utf8);
}

std::size_t codecvt_ustring_to_modified_utf8::do_convert(char* destination,
                                                         std::size_t destination_size,
                                                         char16_t const* source,
                                                         std::size_t source_size) const {
    return to_modified_utf8(destination, destination_size, source, source_size);
}

}  // namespace i18n
}  // namespace fl
