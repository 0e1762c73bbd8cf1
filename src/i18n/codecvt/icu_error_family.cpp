#include "i18n/codecvt/icu_error_family.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"

#include <exception>

namespace fl {
namespace i18n {
namespace detail {

namespace {

constexpr std::size_t int32_limit = 0x7FFFFFFF;
constexpr std::size_t utf16_source_limit = 0x3FFFFFFF;

void invalid_character() {
    fl::detail::throw_exception(CvtInvalidCharacter());
}

void conversion_failure() {
    fl::detail::throw_exception(CvtConversionFailure());
}

void size_too_large() {
    fl::detail::throw_exception(CvtSizeTooLarge());
}

[[noreturn]] void call(void (*raise)()) {
    raise();
    std::terminate();  // every handler throws
}

}  // namespace

icu_error_family const conversion_errors = {&invalid_character, &conversion_failure, nullptr,
                                            nullptr};
icu_error_family const bounded_conversion_errors = {&invalid_character, &conversion_failure,
                                                    &size_too_large, &size_too_large};

void raise_icu_error(UErrorCode error, icu_error_family const& family) {
    if (error == U_INVALID_CHAR_FOUND || error == U_ILLEGAL_CHAR_FOUND) {
        call(family.invalid_character);
    }
    call(family.conversion_failure);
}

void check_icu_lengths(std::size_t source_size, std::size_t capacity, bool from_unicode,
                       icu_error_family const& family) {
    if (family.beyond_int32 != nullptr && (source_size > int32_limit || capacity > int32_limit)) {
        call(family.beyond_int32);
    }
    // In one call ICU refuses such a source: the call could only fail, with this bound as cause.
    if (from_unicode && family.beyond_utf16_source != nullptr && source_size > utf16_source_limit) {
        call(family.beyond_utf16_source);
    }
}

void throw_conversion_error(UErrorCode error) {
    raise_icu_error(error, conversion_errors);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
