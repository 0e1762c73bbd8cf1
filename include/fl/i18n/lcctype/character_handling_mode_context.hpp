#ifndef FL_I18N_LCCTYPE_CHARACTER_HANDLING_MODE_CONTEXT_HPP
#define FL_I18N_LCCTYPE_CHARACTER_HANDLING_MODE_CONTEXT_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {

// How callers ask for a strength of comparison or matching: a mask of case insensitivity,
// normalisation (composed or decomposed) and locale dependence. Combine the constants with |.
class FL_I18N_API character_handling_mode_context {
public:
    static const unsigned int default_mode = 0;
    static const unsigned int insensitive_mode = 1;
    static const unsigned int normalized_compose_mode = 2;
    static const unsigned int normalized_decompose_mode = 6;
    static const unsigned int locale_mode = 8;

    // Throws CtypeInvalidArgument for a bit above 0xF. Implicit, so that a constant or a
    // combination of them can stand where a mode is expected.
    character_handling_mode_context(unsigned int mask);

    bool is_case_sensitive_mode() const noexcept { return (mask_ & 0x1U) == 0; }
    // 0x4 without 0x2 is accepted and then counts as neither form.
    bool is_normalized_compose_mode() const noexcept { return (mask_ & 0x6U) == 0x2U; }
    bool is_normalized_decompose_mode() const noexcept { return (mask_ & 0x6U) == 0x6U; }
    // Only stored and reported here; the file system layer gives it a meaning.
    bool is_locale_dependent_mode() const noexcept { return (mask_ & 0x8U) != 0; }
    // The mask as given, for callers that dispatch on exact values.
    unsigned int get_mask() const noexcept { return mask_; }

private:
    unsigned int mask_;
};

}  // namespace i18n
}  // namespace fl

#endif
