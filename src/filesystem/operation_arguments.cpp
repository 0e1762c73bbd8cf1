#include "filesystem/operation_arguments.hpp"

#include <fl/filesystem/access_form.hpp>

#include "filesystem/path_grammar.hpp"
#include "i18n/codecvt/default_converter.hpp"

namespace fl {
namespace filesystem {
namespace detail {

namespace {

// The bytes of a pure-ASCII path with no tilde to expand, made in one pass. In an encoding
// whose ASCII is itself by ICU's own tables (decided once, with the default converter) the
// bytes are the units, so collapsing the separators of the bytes gives what the native form of
// the units, then converted, gives. False, and bytes unspecified, for any other path.
bool ascii_native_bytes(fl::i18n::ustring const& path, std::string& bytes) {
    if (path.empty() || path[0] == grammar::units<char16_t>::tilde ||
        !fl::i18n::detail::default_encoding_is_ascii_transparent()) {
        return false;
    }
    bytes.assign(path.size(), '\0');
    std::size_t length = 0;
    bool previous_was_separator = false;
    for (char16_t const c : path) {
        if (c >= 0x80) {
            return false;
        }
        bool const separator = grammar::is_separator(c);
        if (!(separator && previous_was_separator)) {
            bytes[length++] = static_cast<char>(c);
        }
        previous_was_separator = separator;
    }
    if (length > 1 && grammar::is_separator(bytes[length - 1])) {
        --length;
    }
    bytes.resize(length);
    return true;
}

}  // namespace

fl::i18n::ustring native_text(fl::i18n::ustring const& path) {
    return make_native_form(path, true);
}

fl::i18n::ustring const& native_text(upath const& path) {
    return path.pathname();
}

std::string system_bytes(fl::i18n::ustring const& path) {
    std::string bytes;
    if (ascii_native_bytes(path, bytes)) {
        return bytes;
    }
    return to_filesystem(native_text(path));
}

std::string system_bytes(upath const& path) {
    return to_filesystem(path.pathname());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
