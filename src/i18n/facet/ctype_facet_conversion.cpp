#include <fl/i18n/facet/ctype_facet.hpp>

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/icu_error_family.hpp"
#include "i18n/codecvt/lent_converter.hpp"
#include "i18n/facet/std_char16_support.hpp"
#include "i18n/facet/widen_table.hpp"

#include <unicode/ucnv.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// The facet sits in the shared global locale, so it owns no converter that threads would share:
// single bytes widen from the table made with the facet, and everything else runs on the
// calling thread's own converter for the facet's encoding, reset after each use. Each call thus
// sees a fresh converter in ICU's default call-backs, as when every call opened its own.

namespace fl {
namespace i18n {
namespace facet {

namespace {

// What one character can become; ample for any encoding ICU knows.
constexpr std::int32_t single_buffer = 16;

using i18n::detail::bounded_conversion_errors;

// A full buffer is what preflighting asks for, so it is no failure here.
void check(UErrorCode error) {
    if (i18n::detail::is_icu_failure(error)) {
        i18n::detail::raise_icu_error(error, bounded_conversion_errors);
    }
}

std::int32_t icu_length(std::size_t count, bool from_unicode) {
    i18n::detail::check_icu_lengths(count, 0, from_unicode, bounded_conversion_errors);
    return static_cast<std::int32_t>(count);
}

// The destination of a range form holds one unit per source unit, however much the encoding
// would write.
std::int32_t capacity_for(std::int32_t needed, std::int32_t count) {
    return std::min(needed, count);
}

detail::widen_table const& opened(detail::widen_table const& table, std::string const& name) {
    if (!table.opened) {
        fl::detail::throw_exception(CvtInvalidEncodingName(name));
    }
    return table;
}

}  // namespace

char16_t ctype_facet<char16_t>::do_widen(char c) const {
    detail::widen_table const& table = opened(*widen_table_, encoding_name_);
    unsigned char const byte = static_cast<unsigned char>(c);
    check(table.errors[byte]);
    return table.units[byte];
}

char const* ctype_facet<char16_t>::do_widen(char const* lo, char const* hi, char16_t* to) const {
    std::int32_t const length = icu_length(static_cast<std::size_t>(hi - lo), false);
    detail::widen_table const& table = opened(*widen_table_, encoding_name_);
    if (table.bytewise) {
        std::transform(lo, hi, to,
                       [&table](char c) { return table.units[static_cast<unsigned char>(c)]; });
        return hi;
    }
    i18n::detail::lent_converter const converter(encoding_name_);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const needed = ucnv_toUChars(converter.get(), nullptr, 0, lo, length, &error);
    check(error);
    error = U_ZERO_ERROR;
    ucnv_toUChars(converter.get(), to, capacity_for(needed, length), lo, length, &error);
    check(error);
    return hi;
}

char ctype_facet<char16_t>::do_narrow(char16_t c, char /*dfault*/) const {
    i18n::detail::lent_converter const converter(encoding_name_);
    char buffer[single_buffer];
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const length =
        ucnv_fromUChars(converter.get(), buffer, single_buffer, &c, 1, &error);
    check(error);
    return length > 0 ? buffer[0] : char(0);
}

char16_t const* ctype_facet<char16_t>::do_narrow(char16_t const* lo, char16_t const* hi,
                                                 char /*dfault*/, char* to) const {
    std::size_t const units = static_cast<std::size_t>(hi - lo);
    icu_length(units, false);
    i18n::detail::lent_converter const converter(encoding_name_);
    // More than ICU takes in one call could only fail, and is refused for its size.
    std::int32_t const count = icu_length(units, true);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const needed = ucnv_fromUChars(converter.get(), nullptr, 0, lo, count, &error);
    check(error);
    error = U_ZERO_ERROR;
    ucnv_fromUChars(converter.get(), to, capacity_for(needed, count), lo, count, &error);
    check(error);
    return hi;
}

}  // namespace facet
}  // namespace i18n
}  // namespace fl
