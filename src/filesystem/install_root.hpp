#ifndef FL_FILESYSTEM_INSTALL_ROOT_HPP
#define FL_FILESYSTEM_INSTALL_ROOT_HPP

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The search behind get_install_path, in native bytes and not kept. Start-up needs it before
// the process encoding is known: decoding then would fix the default converter too early.
std::string find_install_root();

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
