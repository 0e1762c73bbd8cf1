#include "i18n/facet/widen_table.hpp"

#include "common/unique_converter.hpp"
#include "i18n/codecvt/icu_error_family.hpp"

#include <unicode/ucnv.h>

#include <cstdint>

namespace fl {
namespace i18n {
namespace facet {
namespace detail {

namespace {

// What one character can become; ample for any encoding ICU knows.
constexpr std::int32_t single_buffer = 16;

bool is_single_byte_type(UConverter* converter) {
    switch (ucnv_getType(converter)) {
        case UCNV_SBCS:
        case UCNV_LATIN_1:
        case UCNV_US_ASCII:
            return ucnv_getMaxCharSize(converter) == 1;
        default:
            return false;
    }
}

}  // namespace

std::unique_ptr<widen_table const> make_widen_table(std::string const& encoding) {
    auto table = std::make_unique<widen_table>();
    UErrorCode error = U_ZERO_ERROR;
    i18n::detail::unique_converter const converter(ucnv_open(encoding.c_str(), &error));
    if (error > U_ZERO_ERROR || !converter) {
        return table;
    }
    table->opened = true;
    bool bytewise = is_single_byte_type(converter.get());
    for (int byte = 0; byte < 256; ++byte) {
        char const c = static_cast<char>(byte);
        UChar buffer[single_buffer];
        error = U_ZERO_ERROR;
        // ucnv_toUChars starts from a reset converter, as a fresh one would.
        std::int32_t const length =
            ucnv_toUChars(converter.get(), buffer, single_buffer, &c, 1, &error);
        if (i18n::detail::is_icu_failure(error)) {
            table->errors[byte] = error;
            bytewise = false;
            continue;
        }
        table->units[byte] = length > 0 ? buffer[0] : char16_t(0);
        bytewise = bytewise && length == 1;
    }
    table->bytewise = bytewise;
    return table;
}

}  // namespace detail
}  // namespace facet
}  // namespace i18n
}  // namespace fl
