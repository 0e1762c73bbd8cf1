#include <fl/filesystem/filesystem_error.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

using fl::i18n::ustring;

// Widening with sign extension (0xE4 becomes 0xFFE4) keeps every byte visible without a
// converter; the text serves the report only.
ustring widen_bytes(std::string const& bytes) {
    ustring text;
    text.reserve(bytes.size());
    for (char const b : bytes) {
        text.push_back(static_cast<char16_t>(static_cast<signed char>(b)));
    }
    return text;
}

ustring report_text(std::string const& native_path) {
    try {
        return detail::from_filesystem(native_path);
    } catch (...) {
        return widen_bytes(native_path);
    }
}

}  // namespace

void throw_filesystem_error(int error, std::string const& native_path) {
    ustring const pathname = report_text(native_path);
    switch (error) {
        case ENOENT:
            fl::detail::throw_exception(PathNotFound(pathname));
        case EACCES:
            fl::detail::throw_exception(AccessDenied(pathname));
        case EEXIST:
            fl::detail::throw_exception(FileExistsError(pathname));
        case ENOTDIR:
            fl::detail::throw_exception(NotDirectoryError(pathname));
        case EISDIR:
            fl::detail::throw_exception(FileIsDirectory(pathname));
        case EINVAL:
            fl::detail::throw_exception(InvalidArgument());
        case ENAMETOOLONG:
            fl::detail::throw_exception(FileNameTooLarge(pathname));
        case ENOTEMPTY:
            fl::detail::throw_exception(DirectoryNotEmpty(pathname));
        default:
            fl::detail::throw_exception(SystemError(pathname, static_cast<unsigned int>(error)));
    }
}

namespace detail {

void throw_invalid_operation_exception() {
    fl::detail::throw_exception(InvalidOperation());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
