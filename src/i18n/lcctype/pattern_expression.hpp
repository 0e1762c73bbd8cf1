#ifndef FL_I18N_LCCTYPE_PATTERN_EXPRESSION_HPP
#define FL_I18N_LCCTYPE_PATTERN_EXPRESSION_HPP

#include <fl/i18n/lcctype/character_handling_mode_context.hpp>

#include "i18n/lcctype/pattern_text.hpp"

#include <unicode/uregex.h>

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// The steps the throwing and the status forms of pattern matching share.

inline std::int32_t normalization_of(character_handling_mode_context const& mode) {
    if (mode.is_normalized_compose_mode()) {
        return normalize_bit;
    }
    if (mode.is_normalized_decompose_mode()) {
        return normalize_bit | decompose_bit;
    }
    return 0;
}

// Null when ICU refuses the expression; the details of its parse error are not kept.
inline URegularExpression* open_expression(pattern_text const& pattern,
                                           character_handling_mode_context const& mode) {
    UErrorCode error = U_ZERO_ERROR;
    std::uint32_t const flags = mode.is_case_sensitive_mode() ? 0 : UREGEX_CASE_INSENSITIVE;
    URegularExpression* expression =
        uregex_open(pattern.data(), pattern.length(), flags, nullptr, &error);
    if (error > U_ZERO_ERROR) {
        uregex_close(expression);
        return nullptr;
    }
    return expression;
}

// The expression keeps a pointer to the text's units, which no later call reads: each match
// sets its own text first. False in matched when ICU fails, with the answer in the result.
inline bool matches_whole(URegularExpression* expression, pattern_text const& text, bool& matched) {
    UErrorCode error = U_ZERO_ERROR;
    uregex_setText(expression, text.data(), text.length(), &error);
    if (error > U_ZERO_ERROR) {
        return false;
    }
    UBool const answer = uregex_matches(expression, -1, &error);
    if (error > U_ZERO_ERROR) {
        return false;
    }
    matched = answer == 1;
    return true;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
