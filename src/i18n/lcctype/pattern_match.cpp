#include <fl/i18n/lcctype/pattern_match.hpp>
#include <fl/i18n/lcctype/regex_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcctype/pattern_expression.hpp"

#include <memory>

namespace fl {
namespace i18n {

// Owns the compiled expression, so that it is closed on every way out.
class pattern_holder {
public:
    explicit pattern_holder(URegularExpression* expression)
        : expression(expression), ready(expression != nullptr) {}
    ~pattern_holder() { uregex_close(expression); }
    pattern_holder(pattern_holder const&) = delete;
    pattern_holder& operator=(pattern_holder const&) = delete;

    URegularExpression* expression;
    bool ready;
};

namespace {

void normalize_or_throw(lcctype::detail::pattern_text& out, ustring const& text,
                        std::int32_t normalization) {
    if (!out.normalize(text, normalization)) {
        fl::detail::throw_exception(RegexFailedNormalization());
    }
}

}  // namespace

pattern_match::pattern_match(ustring const& pattern, character_handling_mode_context const& mode)
    : holder(nullptr), normalization(lcctype::detail::normalization_of(mode)) {
    if (pattern.empty()) {
        fl::detail::throw_exception(RegexInvalidArgument());
    }
    // The expression's own source, metacharacters included, takes the texts' normal form.
    lcctype::detail::pattern_text working;
    if (normalization != 0) {
        normalize_or_throw(working, pattern, normalization);
    } else {
        working.borrow(pattern);
    }
    if (working.length() == 0) {
        fl::detail::throw_exception(RegexInvalidArgument());
    }
    // The holder exists before ICU opens the expression, so nothing can leak it.
    auto owner = std::make_unique<pattern_holder>(nullptr);
    owner->expression = lcctype::detail::open_expression(working, mode);
    if (owner->expression == nullptr) {
        fl::detail::throw_exception(RegexFailedObjectCreation());
    }
    owner->ready = true;
    holder = owner.release();
}

pattern_match::~pattern_match() {
    delete holder;
}

bool pattern_match::match(ustring const& text) const {
    if (holder == nullptr || !holder->ready) {
        fl::detail::throw_exception(RegexInvalidObject());
    }
    lcctype::detail::pattern_text working;
    if ((normalization & lcctype::detail::normalize_bit) != 0) {
        normalize_or_throw(working, text, normalization);
    } else {
        working.borrow(text);
    }
    bool matched = false;
    if (!lcctype::detail::matches_whole(holder->expression, working, matched)) {
        fl::detail::throw_exception(RegexFailedMatchOperation());
    }
    return matched;
}

}  // namespace i18n
}  // namespace fl
