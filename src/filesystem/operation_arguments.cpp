#include "filesystem/operation_arguments.hpp"

#include <fl/filesystem/access_form.hpp>

namespace fl {
namespace filesystem {
namespace detail {

fl::i18n::ustring native_text(fl::i18n::ustring const& path) {
    return make_native_form(path, true);
}

fl::i18n::ustring const& native_text(upath const& path) {
    return path.pathname();
}

std::string system_bytes(fl::i18n::ustring const& path) {
    return to_filesystem(native_text(path));
}

std::string system_bytes(upath const& path) {
    return to_filesystem(path.pathname());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
