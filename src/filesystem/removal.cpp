#include <fl/filesystem/modifying_operations.hpp>

#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/operation_arguments.hpp"
#include "filesystem/stat_conversion.hpp"
#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

void remove_at(std::string const& path, bool recursive);

void empty_directory(std::string const& path) {
    detail::platform::directory_stream directory;
    int error = directory.open(path);
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
    std::string name;
    bool at_end = false;
    for (;;) {
        error = directory.read(name, at_end);
        if (error != 0) {
            throw_filesystem_error(error, path);
        }
        if (at_end) {
            break;
        }
        if (name == "." || name == "..") {
            continue;
        }
        remove_at(path + "/" + name, true);
    }
}

// Stops at the first failure; what was removed before it stays removed.
void remove_at(std::string const& path, bool recursive) {
    if (path.empty()) {
        return;
    }
    struct stat info {};
    int error = detail::platform::lstat_path(path, info);
    if (error == ENOENT) {
        throw_filesystem_error(error, std::string());
    }
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
    unsigned int const type = detail::file_type_of(info.st_mode);
    if (type == file_status::regular_file || type == file_status::symlink_file) {
        error = detail::platform::unlink_path(path);
    } else if (type == file_status::directory_file) {
        if (recursive) {
            empty_directory(path);
        }
        error = detail::platform::remove_directory(path);
    } else {
        // Fifos, sockets and devices are not removed by this operation.
        fl::detail::throw_exception(InvalidArgument());
    }
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
}

void rename_at(std::string const& old_path, std::string const& new_path) {
    if (old_path.empty() || new_path.empty()) {
        return;
    }
    int const error = detail::platform::rename_path(old_path, new_path);
    if (error != 0) {
        throw_filesystem_error(error, old_path);
    }
}

}  // namespace

void remove(fl::i18n::ustring const& path) {
    remove_at(detail::system_bytes(path), false);
}

void remove(upath const& path) {
    remove_at(detail::system_bytes(path), false);
}

void remove_all(fl::i18n::ustring const& path) {
    remove_at(detail::system_bytes(path), true);
}

void remove_all(upath const& path) {
    remove_at(detail::system_bytes(path), true);
}

void rename(fl::i18n::ustring const& old_path, fl::i18n::ustring const& new_path) {
    rename_at(detail::system_bytes(old_path), detail::system_bytes(new_path));
}

void rename(upath const& old_path, upath const& new_path) {
    rename_at(detail::system_bytes(old_path), detail::system_bytes(new_path));
}

}  // namespace filesystem
}  // namespace fl
