#include "i18n/time/one_shot_conversion.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/conversion_error.hpp"
#include "i18n/codecvt/convert_with_estimate.hpp"
#include "i18n/codecvt/default_converter.hpp"
#include "i18n/codecvt/unique_converter.hpp"

namespace fl {
namespace i18n {
namespace detail {

namespace {

constexpr std::size_t icu_max_length = 0x7FFFFFFF;
constexpr std::size_t icu_max_utf16_source = 0x3FFFFFFF;

void check_sizes(std::size_t size, std::size_t capacity) {
    if (size > icu_max_length || capacity > icu_max_length) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
}

bool is_success(UErrorCode error) {
    return error <= U_ZERO_ERROR || error == U_BUFFER_OVERFLOW_ERROR;
}

}  // namespace

std::size_t to_unicode_once(UConverter* converter, char16_t* destination, std::size_t capacity,
                            char const* source, std::size_t size) {
    check_sizes(size, capacity);
    UErrorCode error = U_ZERO_ERROR;
    int32_t const length = ucnv_toUChars(converter, destination, static_cast<int32_t>(capacity),
                                         source, static_cast<int32_t>(size), &error);
    if (is_success(error)) {
        return static_cast<std::size_t>(length);
    }
    throw_conversion_error(error);
}

std::size_t from_unicode_once(UConverter* converter, char* destination, std::size_t capacity,
                              char16_t const* source, std::size_t size) {
    check_sizes(size, capacity);
    UErrorCode error = U_ZERO_ERROR;
    int32_t const length = ucnv_fromUChars(converter, destination, static_cast<int32_t>(capacity),
                                           source, static_cast<int32_t>(size), &error);
    if (is_success(error)) {
        return static_cast<std::size_t>(length);
    }
    // ICU may have failed only because the output would pass its 32-bit count.
    if (size > icu_max_utf16_source) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
    throw_conversion_error(error);
}

ustring default_bytes_to_ustring(char const* source, std::size_t size) {
    unique_converter const converter(clone_default_converter());
    return convert_with_estimate<char16_t>(source, size,
                                           [&converter](char16_t* destination, std::size_t capacity,
                                                        char const* from, std::size_t from_size) {
                                               return to_unicode_once(converter.get(), destination,
                                                                      capacity, from, from_size);
                                           });
}

std::string default_ustring_to_bytes(ustring const& source) {
    unique_converter const converter(clone_default_converter());
    return convert_with_estimate<char>(source.data(), source.size(),
                                       [&converter](char* destination, std::size_t capacity,
                                                    char16_t const* from, std::size_t from_size) {
                                           return from_unicode_once(converter.get(), destination,
                                                                    capacity, from, from_size);
                                       });
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
