#include "i18n/codecvt/conversion_steps.hpp"

namespace fl {
namespace i18n {
namespace detail {

std::size_t from_unicode_step(UConverter* converter, char** target, char const* target_limit,
                              char16_t const** source, char16_t const* source_limit, bool flush,
                              UErrorCode* error) {
    char* const start = *target;
    *error = U_ZERO_ERROR;
    ucnv_fromUnicode(converter, target, target_limit, source, source_limit, nullptr, flush, error);
    return static_cast<std::size_t>(*target - start);
}

std::size_t to_unicode_step(UConverter* converter, char16_t** target, char16_t const* target_limit,
                            char const** source, char const* source_limit, bool flush,
                            UErrorCode* error) {
    char16_t* const start = *target;
    *error = U_ZERO_ERROR;
    ucnv_toUnicode(converter, target, target_limit, source, source_limit, nullptr, flush, error);
    return static_cast<std::size_t>(*target - start);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
