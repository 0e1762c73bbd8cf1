#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filename_converter.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/filesystem/path_comparison.hpp>

#include "common/throw_exception.hpp"

#include <cstddef>
#include <string>

namespace fl {
namespace filesystem {
namespace {

constexpr std::size_t longest_path_bytes = 4095;
constexpr std::size_t longest_element_bytes = 255;

bool has_control_character(fl::i18n::ustring const& text) {
    for (char16_t const unit : text) {
        if (unit < 0x20 || unit == 0x7F) {
            return true;
        }
    }
    return false;
}

bool is_encodable(fl::i18n::ustring const& text) {
    try {
        codecvt_ustring_to_filesystem const strict(false);
        strict.do_convert(text.data(), text.size());
    } catch (CvtInvalidCharacter const&) {
        return false;
    }
    return true;
}

bool has_long_element(std::string const& bytes) {
    std::size_t start = 0;
    for (;;) {
        std::size_t const slash = bytes.find('/', start);
        std::size_t const end = slash == std::string::npos ? bytes.size() : slash;
        if (end - start > longest_element_bytes) {
            return true;
        }
        if (slash == std::string::npos) {
            return false;
        }
        start = slash + 1;
    }
}

}  // namespace

unsigned int validate_pathname(fl::i18n::ustring const& path, validation_id id,
                               fl::i18n::character_handling_mode_context const&) {
    if (path.empty()) {
        return 0;
    }
    if ((id & validation_no_control_characters) && has_control_character(path)) {
        return validation_no_control_characters;
    }
    // Runs whatever was asked: a text the file system encoding can't hold is never a path.
    if (!is_encodable(path)) {
        return validation_encodable;
    }
    if ((id & (validation_path_length | validation_element_length)) == 0) {
        return 0;
    }
    std::string const bytes = detail::to_filesystem(path);
    if ((id & validation_path_length) && bytes.size() > longest_path_bytes) {
        return validation_path_length;
    }
    if ((id & validation_element_length) && has_long_element(bytes)) {
        return validation_element_length;
    }
    return 0;
}

fl::i18n::character_handling_mode_context generate_character_handling_mask_from_volume(
    upath const& path) {
    if (path.pathname().empty()) {
        fl::detail::throw_exception(InvalidArgument());
    }
    // Converting still reports a path the encoding can't carry; the bytes themselves aren't
    // needed, since no volume is asked.
    static_cast<void>(detail::to_filesystem(path.pathname()));
    return fl::i18n::character_handling_mode_context(
        fl::i18n::character_handling_mode_context::default_mode);
}

}  // namespace filesystem
}  // namespace fl
