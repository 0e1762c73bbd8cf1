#include <fl/i18n/lcctype/pattern_match.hpp>

#include "i18n/lcctype/pattern_expression.hpp"

namespace fl {
namespace i18n {

pattern_status::~pattern_status() {
    uregex_close(expression);
}

std::int32_t pattern_status::compile(ustring const& pattern,
                                     character_handling_mode_context const& mode) {
    if (status != not_compiled_yet) {
        return status;
    }
    if (pattern.empty()) {
        status = empty_pattern;
        return status;
    }
    normalization = lcctype::detail::normalization_of(mode);
    // The normal form is taken (as composition without a normalising mode) and may fail even
    // when its result goes unused.
    lcctype::detail::pattern_text working;
    if (!working.normalize(pattern, normalization)) {
        status = normalization_failed;
        return status;
    }
    if ((normalization & lcctype::detail::normalize_bit) == 0) {
        working.borrow(pattern);
    }
    expression = lcctype::detail::open_expression(working, mode);
    if (expression == nullptr) {
        status = creation_failed;
        return status;
    }
    ready = true;
    status = ok;
    return status;
}

bool pattern_status::match(ustring const& text, std::int32_t& result_status) const {
    if (status != ok) {
        result_status = not_compiled;
        return false;
    }
    lcctype::detail::pattern_text working;
    if (!working.normalize(text, normalization)) {
        result_status = normalization_failed;
        return false;
    }
    if ((normalization & lcctype::detail::normalize_bit) == 0) {
        working.borrow(text);
    }
    bool matched = false;
    if (!lcctype::detail::matches_whole(expression, working, matched)) {
        result_status = match_failed;
        return false;
    }
    result_status = ok;
    return matched;
}

}  // namespace i18n
}  // namespace fl
