#include <fl/filesystem/modifying_operations.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/link_primitives.hpp"
#include "filesystem/operation_arguments.hpp"
#include "platform/posix_platform.hpp"

#include <cerrno>
#include <new>

namespace fl {
namespace filesystem {
namespace detail {

void create_symlink_at(std::string const& target, std::string const& link) {
    struct stat info {};
    int error = platform::stat_path(link, info);
    if (error == 0) {
        throw_filesystem_error(EEXIST, std::string());
    }
    if (error != ENOENT && error != ENOTDIR) {
        throw_filesystem_error(error, link);
    }
    error = platform::make_symlink(target, link);
    if (error != 0) {
        throw_filesystem_error(error, target);
    }
}

fl::i18n::ustring read_symlink_at(std::string const& path) {
    if (path.empty()) {
        return {};
    }
    std::string target;
    int error = 0;
    try {
        error = platform::read_link(path, target);
    } catch (std::bad_alloc const&) {
        throw_filesystem_error(ENOMEM, std::string());
    }
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
    return make_native_form(from_filesystem(target), true);
}

}  // namespace detail

namespace {

void copy_symlink_at(std::string const& from, std::string const& to) {
    struct stat info {};
    int const error = detail::platform::lstat_path(from, info);
    if (error != 0) {
        throw_filesystem_error(error, from);
    }
    if (!S_ISLNK(info.st_mode)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    fl::i18n::ustring const target = detail::read_symlink_at(from);
    if (!target.empty()) {
        detail::create_symlink_at(detail::to_filesystem(target), to);
    }
}

}  // namespace

void create_symlink(fl::i18n::ustring const& target, fl::i18n::ustring const& link, unsigned int) {
    detail::create_symlink_at(detail::system_bytes(target), detail::system_bytes(link));
}

void create_symlink(upath const& target, upath const& link, unsigned int) {
    detail::create_symlink_at(detail::system_bytes(target), detail::system_bytes(link));
}

fl::i18n::ustring read_symlink(fl::i18n::ustring const& path) {
    return detail::read_symlink_at(detail::system_bytes(path));
}

upath read_symlink(upath const& path) {
    return upath(detail::read_symlink_at(detail::system_bytes(path)));
}

void copy_symlink(fl::i18n::ustring const& from, fl::i18n::ustring const& to) {
    copy_symlink_at(detail::system_bytes(from), detail::system_bytes(to));
}

void copy_symlink(upath const& from, upath const& to) {
    copy_symlink_at(detail::system_bytes(from), detail::system_bytes(to));
}

}  // namespace filesystem
}  // namespace fl
