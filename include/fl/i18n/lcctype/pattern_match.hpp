#ifndef FL_I18N_LCCTYPE_PATTERN_MATCH_HPP
#define FL_I18N_LCCTYPE_PATTERN_MATCH_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcctype/character_handling_mode_context.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>

struct URegularExpression;

namespace fl {
namespace i18n {

class pattern_holder;

// A compiled regular expression that must match a whole text. Under a normalising mode the
// pattern's own source text and every text are put into the same normal form (NFC or NFD)
// first, so composed and decomposed spellings meet; an insensitive mode ignores case.
// match changes ICU state, so one object serves one thread at a time.
class FL_I18N_API pattern_match {
public:
    // Throws RegexInvalidArgument for an empty pattern, RegexFailedObjectCreation when ICU
    // refuses the expression, RegexFailedNormalization, and boost::numeric::positive_overflow
    // for a pattern of more than 0x7FFFFFFF units.
    pattern_match(ustring const& pattern, character_handling_mode_context const& mode);
    ~pattern_match();
    pattern_match(pattern_match const&) = delete;
    pattern_match& operator=(pattern_match const&) = delete;

    // Throws RegexFailedMatchOperation when ICU fails, for instance when backtracking exhausts
    // its stack, and RegexFailedNormalization.
    bool match(ustring const& text) const;

private:
    pattern_holder* holder;
    std::int32_t normalization;  // 0 none, 1 composed, 3 decomposed
};

// The same engine reporting by status codes, for callers that must not throw per entry.
class FL_I18N_API pattern_status {
public:
    enum : std::int32_t {
        not_compiled_yet = 0,
        ok = 1,
        empty_pattern = 2,
        not_compiled = 3,
        creation_failed = 4,
        match_failed = 5,
        normalization_failed = 6,
    };

    pattern_status() = default;
    ~pattern_status();
    pattern_status(pattern_status const&) = delete;
    pattern_status& operator=(pattern_status const&) = delete;

    // Only the first call compiles; later calls return the status it left.
    std::int32_t compile(ustring const& pattern, character_handling_mode_context const& mode);
    // Stores ok, not_compiled, match_failed or normalization_failed in result_status; false
    // unless the whole text matches.
    bool match(ustring const& text, std::int32_t& result_status) const;
    std::int32_t get_status() const noexcept { return status; }

private:
    URegularExpression* expression = nullptr;
    bool ready = false;
    std::int32_t normalization = 0;
    std::int32_t status = not_compiled_yet;
};

}  // namespace i18n
}  // namespace fl

#endif
