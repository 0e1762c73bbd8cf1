#ifndef FL_FILESYSTEM_PATH_COMPARISON_HPP
#define FL_FILESYSTEM_PATH_COMPARISON_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/lcctype/character_handling_mode_context.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace filesystem {

// Textual order of two path names; the file system is never touched and "/" is an ordinary unit.
// The ustring forms clean each side first (native form, tilde expansion).
//
// Without a mode both sides must be absolute (InvalidArgument otherwise), and equal prefixes
// give the difference of the lengths, clamped to int.
FL_I18N_API int compare(fl::i18n::ustring const& a, fl::i18n::ustring const& b);
FL_I18N_API int compare(upath const& a, upath const& b);

// With a mode relative paths are fine. Exactly insensitive_mode folds case; a mode with a
// normalisation bit compares canonically equivalent texts as equal (and folds case too when it
// has the insensitive bit); default_mode is the unit order above. Any other mode, locale_mode
// among them, throws InvalidArgument; an ICU failure throws PathNameComparisonFailure. Only the
// sign of an ICU answer has meaning.
FL_I18N_API int compare(fl::i18n::ustring const& a, fl::i18n::ustring const& b,
                        fl::i18n::character_handling_mode_context const& mode);
FL_I18N_API int compare(upath const& a, upath const& b,
                        fl::i18n::character_handling_mode_context const& mode);

// No volume here folds case or normalises: default_mode for every non-empty path.
FL_I18N_API fl::i18n::character_handling_mode_context generate_character_handling_mask_from_volume(
    upath const& path);

// Checks a text can serve as a path; the checks run in the order of the bits and the first
// failure is the result. Whether the file system encoding can hold the text is always checked
// and answers validation_encodable.
enum validation_id : unsigned int {
    validation_encodable = 1,
    validation_no_control_characters = 4,
    validation_path_length = 0x10,     // at most 4095 bytes
    validation_element_length = 0x20,  // at most 255 bytes between slashes
};

// 0 when valid (the empty text always is), else the bit of the failed check. The mode is not
// consulted. Conversion failures other than an unmappable character pass as exceptions.
FL_I18N_API unsigned int validate_pathname(fl::i18n::ustring const& path, validation_id id,
                                           fl::i18n::character_handling_mode_context const& mode);

}  // namespace filesystem
}  // namespace fl

#endif
