#ifndef FL_FILESYSTEM_LINK_PRIMITIVES_HPP
#define FL_FILESYSTEM_LINK_PRIMITIVES_HPP

#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// Link work on system bytes, shared by the link and copy operations.

// Refuses a link name that exists (FileExistsError without a path).
void create_symlink_at(std::string const& target, std::string const& link);

// The target, decoded and in native form with tilde expansion; empty for the empty path.
fl::i18n::ustring read_symlink_at(std::string const& path);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
