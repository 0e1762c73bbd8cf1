#include <fl/filesystem/status_operations.hpp>

#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/operation_arguments.hpp"
#include "filesystem/stat_conversion.hpp"
#include "platform/posix_platform.hpp"

#include <unistd.h>

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

using detail::system_bytes;

bool exists_at(std::string const& path) {
    if (path.empty()) {
        return false;
    }
    struct stat info {};
    int const error = detail::platform::stat_path(path, info);
    if (error == 0) {
        return true;
    }
    if (error == ENOENT || error == ENOTDIR) {
        return false;
    }
    throw_filesystem_error(error, path);
}

using stat_call = int (*)(std::string const&, struct stat&);

// Unlike exists, ENOTDIR is a failure here, and the report carries no path.
file_status status_at(std::string const& path, stat_call call) {
    if (path.empty()) {
        return file_status();
    }
    struct stat info {};
    int const error = call(path, info);
    if (error == 0) {
        return detail::to_file_status(info);
    }
    if (error == ENOENT) {
        return file_status();
    }
    throw_filesystem_error(error, std::string());
}

bool access_at(std::string const& path, unsigned int mask) {
    if (mask == 0 || (mask & ~0xFu) != 0) {
        fl::detail::throw_exception(InvalidArgument());
    }
    int mode = 0;
    if (mask & access_read) {
        mode |= R_OK;
    }
    if (mask & access_write) {
        mode |= W_OK;
    }
    if (mask & access_execute) {
        mode |= X_OK;
    }
    if (mask == access_exists) {
        mode = F_OK;
    }
    int const error = detail::platform::access_path(path, mode);
    if (error == 0) {
        return true;
    }
    if (error == EACCES) {
        // Denial is an answer, unless the file can't even be seen when existence was asked.
        struct stat info {};
        if ((mask & access_exists) && detail::platform::stat_path(path, info) != 0) {
            throw_filesystem_error(EACCES, path);
        }
        return false;
    }
    if (error == EROFS && (mask & access_write)) {
        return false;
    }
    throw_filesystem_error(error, path);
}

}  // namespace

bool exists(fl::i18n::ustring const& path) {
    return exists_at(system_bytes(path));
}

bool exists(upath const& path) {
    return exists_at(system_bytes(path));
}

file_status status(fl::i18n::ustring const& path) {
    return status_at(system_bytes(path), &detail::platform::stat_path);
}

file_status status(upath const& path) {
    return status_at(system_bytes(path), &detail::platform::stat_path);
}

file_status symlink_status(fl::i18n::ustring const& path) {
    return status_at(system_bytes(path), &detail::platform::lstat_path);
}

file_status symlink_status(upath const& path) {
    return status_at(system_bytes(path), &detail::platform::lstat_path);
}

file_status_light status_express_light(fl::i18n::ustring const& path) {
    std::string const bytes = system_bytes(path);
    if (bytes.empty()) {
        return file_status_light();
    }
    struct stat info {};
    int const error = detail::platform::stat_path(bytes, info);
    if (error == 0) {
        return detail::to_file_status_light(info);
    }
    if (error == ENOENT || error == EINVAL) {
        return file_status_light();
    }
    throw_filesystem_error(error, bytes);
}

bool access(fl::i18n::ustring const& path, unsigned int mask) {
    return access_at(system_bytes(path), mask);
}

bool access(upath const& path, unsigned int mask) {
    return access_at(system_bytes(path), mask);
}

}  // namespace filesystem
}  // namespace fl
