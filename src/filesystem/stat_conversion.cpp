#include "filesystem/stat_conversion.hpp"

#include <boost/date_time/posix_time/conversion.hpp>

#include <cstdint>

namespace fl {
namespace filesystem {
namespace detail {

unsigned int file_type_of(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFIFO:
            return file_status::fifo_file;
        case S_IFCHR:
            return file_status::character_file;
        case S_IFDIR:
            return file_status::directory_file;
        case S_IFBLK:
            return file_status::block_file;
        case S_IFREG:
            return file_status::regular_file;
        case S_IFLNK:
            return file_status::symlink_file;
        case S_IFSOCK:
            return file_status::socket_file;
        default:
            return file_status::file_type_unknown;
    }
}

file_status to_file_status(struct stat const& info) {
    using boost::posix_time::from_time_t;
    return file_status(file_type_of(info.st_mode), static_cast<unsigned int>(info.st_mode & 07777),
                       from_time_t(info.st_atime), from_time_t(info.st_mtime),
                       from_time_t(info.st_ctime), static_cast<std::uint64_t>(info.st_size));
}

file_status_light to_file_status_light(struct stat const& info) {
    return file_status_light(static_cast<unsigned int>(info.st_mode) & file_status::file_type_mask,
                             boost::posix_time::from_time_t(info.st_mtime),
                             static_cast<std::uint64_t>(info.st_size));
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
