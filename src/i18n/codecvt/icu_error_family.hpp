#ifndef FL_I18N_CODECVT_ICU_ERROR_FAMILY_HPP
#define FL_I18N_CODECVT_ICU_ERROR_FAMILY_HPP

#include <unicode/utypes.h>

#include <cstddef>

namespace fl {
namespace i18n {
namespace detail {

// How one family of callers (the converter objects, the one-call routes of the environment,
// the facet and modified UTF-8, the file names) reports what ICU refuses. Every ICU failure of
// the library goes through raise_icu_error with its family; only the exceptions differ.
struct icu_error_family {
    // Errors 10 and 12: a character that can't be converted.
    void (*invalid_character)();
    // Every other failure; a sequence cut off at the end of the text is one too, since its rest
    // may simply not have arrived.
    void (*conversion_failure)();
    // Routes that hand a whole text to ICU in one call refuse what ICU's 32-bit counts can't
    // hold; null where texts are chunked and any length converts.
    void (*beyond_int32)();
    // Such a route refuses more than 0x3FFFFFFF UTF-16 units as a source (ICU's own limit there).
    void (*beyond_utf16_source)();
};

// The converter objects and the default-encoding functions: texts are chunked, any length.
extern icu_error_family const conversion_errors;
// The routes that convert in one ICU call: lengths are bounded, and a bound is CvtSizeTooLarge.
extern icu_error_family const bounded_conversion_errors;

// Error words above 0 are failures, except a full buffer, which only says more room is needed.
inline bool is_icu_failure(UErrorCode error) noexcept {
    return error > U_ZERO_ERROR && error != U_BUFFER_OVERFLOW_ERROR;
}

[[noreturn]] void raise_icu_error(UErrorCode error, icu_error_family const& family);

// The bounds of a one-call family, checked before ICU sees the text.
void check_icu_lengths(std::size_t source_size, std::size_t capacity, bool from_unicode,
                       icu_error_family const& family);

// raise_icu_error of the converter objects' family.
[[noreturn]] void throw_conversion_error(UErrorCode error);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
