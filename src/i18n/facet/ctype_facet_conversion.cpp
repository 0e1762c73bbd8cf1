#include <fl/i18n/facet/ctype_facet.hpp>

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/conversion_error.hpp"
#include "i18n/facet/std_char16_support.hpp"

#include <unicode/ucnv.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// Every call opens a converter of its own: no lock, and the facet can serve many threads.

namespace fl {
namespace i18n {
namespace facet {

namespace {

// What one character can become; ample for any encoding ICU knows.
constexpr std::int32_t single_buffer = 16;
constexpr std::size_t icu_length_limit = 0x7FFFFFFF;
// A narrowing source this long may have failed because its output outgrew ICU's counts.
constexpr std::size_t narrow_size_limit = 0x3FFFFFFF;

// A full buffer is what preflighting asks for, so it is no failure here.
void check(UErrorCode error) {
    if (U_FAILURE(error) && error != U_BUFFER_OVERFLOW_ERROR) {
        i18n::detail::throw_conversion_error(error);
    }
}

void check_narrowing(UErrorCode error, std::size_t count) {
    if (U_FAILURE(error) && error != U_BUFFER_OVERFLOW_ERROR && count > narrow_size_limit) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
    check(error);
}

std::int32_t icu_length(std::size_t count) {
    if (count > icu_length_limit) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
    return static_cast<std::int32_t>(count);
}

// The destination of a range form holds one unit per source unit, however much the encoding
// would write.
std::int32_t capacity_for(std::int32_t needed, std::int32_t count) {
    return std::min(needed, count);
}

}  // namespace

char16_t ctype_facet<char16_t>::do_widen(char c) const {
    i18n::detail::codecvt_context context(encoding_name_);
    UChar buffer[single_buffer];
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const length = ucnv_toUChars(context.get(), buffer, single_buffer, &c, 1, &error);
    check(error);
    return length > 0 ? buffer[0] : char16_t(0);
}

char const* ctype_facet<char16_t>::do_widen(char const* lo, char const* hi, char16_t* to) const {
    std::int32_t const count = icu_length(static_cast<std::size_t>(hi - lo));
    i18n::detail::codecvt_context context(encoding_name_);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const needed = ucnv_toUChars(context.get(), nullptr, 0, lo, count, &error);
    check(error);
    error = U_ZERO_ERROR;
    ucnv_toUChars(context.get(), to, capacity_for(needed, count), lo, count, &error);
    check(error);
    return hi;
}

char ctype_facet<char16_t>::do_narrow(char16_t c, char /*dfault*/) const {
    i18n::detail::codecvt_context context(encoding_name_);
    char buffer[single_buffer];
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const length =
        ucnv_fromUChars(context.get(), buffer, single_buffer, &c, 1, &error);
    check(error);
    return length > 0 ? buffer[0] : char(0);
}

char16_t const* ctype_facet<char16_t>::do_narrow(char16_t const* lo, char16_t const* hi,
                                                 char /*dfault*/, char* to) const {
    std::size_t const units = static_cast<std::size_t>(hi - lo);
    std::int32_t const count = icu_length(units);
    i18n::detail::codecvt_context context(encoding_name_);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const needed = ucnv_fromUChars(context.get(), nullptr, 0, lo, count, &error);
    check_narrowing(error, units);
    error = U_ZERO_ERROR;
    ucnv_fromUChars(context.get(), to, capacity_for(needed, count), lo, count, &error);
    check_narrowing(error, units);
    return hi;
}

}  // namespace facet
}  // namespace i18n
}  // namespace fl
