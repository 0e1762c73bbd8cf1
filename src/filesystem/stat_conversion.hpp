#ifndef FL_FILESYSTEM_STAT_CONVERSION_HPP
#define FL_FILESYSTEM_STAT_CONVERSION_HPP

#include <fl/filesystem/file_status.hpp>

#include <sys/stat.h>

namespace fl {
namespace filesystem {
namespace detail {

// The type constant of a mode: its S_IF bits when they name a known type, else unknown.
unsigned int file_type_of(mode_t mode);

file_status to_file_status(struct stat const& info);
file_status_light to_file_status_light(struct stat const& info);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
