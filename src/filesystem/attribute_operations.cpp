#include <fl/filesystem/modifying_operations.hpp>

#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/i18n/time/ptime_to_time_t.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/operation_arguments.hpp"
#include "platform/posix_platform.hpp"

namespace fl {
namespace filesystem {
namespace {

using detail::system_bytes;

constexpr unsigned int attribute_flags = file_status::archive_file | file_status::system_file |
                                         file_status::hidden_file | file_status::non_indexed_file;

void permissions_at(std::string const& path, unsigned int request) {
    bool const on_link = (request & file_status::perms_symlink) != 0;
    struct stat info {};
    // A missing file is reported by the change itself below, not here.
    bool const found = (on_link ? detail::platform::lstat_path(path, info)
                                : detail::platform::stat_path(path, info)) == 0;
    unsigned int const current = found ? static_cast<unsigned int>(info.st_mode & 07777) : 0;
    // Attributes mean nothing here, but their bits would pass for permission bits.
    if (request & attribute_flags) {
        request &= ~attribute_flags;
    }
    unsigned int const bits = request & file_status::perms_mask;
    unsigned int mode = bits;
    if (request & file_status::perms_add) {
        mode = current | bits;
    } else if (request & file_status::perms_remove) {
        mode = current & ~bits;
    }
    if (on_link && found && S_ISLNK(info.st_mode)) {
        detail::throw_invalid_operation_exception();
    }
    int const error = detail::platform::change_mode(path, static_cast<mode_t>(mode));
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
}

void last_write_time_at(std::string const& path, boost::posix_time::ptime const& time) {
    if (time.is_not_a_date_time()) {
        fl::detail::throw_exception(InvalidArgument());
    }
    struct stat info {};
    int error = detail::platform::stat_path(path, info);
    if (error != 0) {
        throw_filesystem_error(error, std::string());
    }
    error = detail::platform::set_file_times(path, info.st_atime,
                                             fl::i18n::date_time::ptime_to_time_t(time));
    if (error != 0) {
        throw_filesystem_error(error, std::string());
    }
}

}  // namespace

void permissions(fl::i18n::ustring const& path, unsigned int request) {
    permissions_at(system_bytes(path), request);
}

void permissions(upath const& path, unsigned int request) {
    permissions_at(system_bytes(path), request);
}

void last_write_time(fl::i18n::ustring const& path, boost::posix_time::ptime const& time) {
    last_write_time_at(system_bytes(path), time);
}

void last_write_time(upath const& path, boost::posix_time::ptime const& time) {
    last_write_time_at(system_bytes(path), time);
}

}  // namespace filesystem
}  // namespace fl
