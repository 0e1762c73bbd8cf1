#ifndef FL_FILESYSTEM_CURRENT_DIRECTORY_HPP
#define FL_FILESYSTEM_CURRENT_DIRECTORY_HPP

#include <boost/thread/mutex.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The lock over the process's current directory, made on first use and never destroyed.
boost::mutex& current_directory_mutex();

// The current directory in bytes, read under that lock; a failure throws without a path.
std::string current_directory_bytes();

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
