#include "filesystem/current_directory.hpp"

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/path_resolution.hpp>

#include "filesystem/operation_arguments.hpp"
#include "platform/posix_platform.hpp"

#include <boost/thread/lock_types.hpp>
#include <boost/thread/once.hpp>

#include <atomic>

namespace fl {
namespace filesystem {
namespace detail {
namespace {

boost::once_flag mutex_once = BOOST_ONCE_INIT;
// Never deleted. Published through an atomic as well, since the once-flag commits inside Boost's
// compiled library where a race detector can't follow it.
std::atomic<boost::mutex*> the_mutex{nullptr};

void create_mutex() {
    the_mutex.store(new boost::mutex(), std::memory_order_release);
}

}  // namespace

boost::mutex& current_directory_mutex() {
    boost::call_once(mutex_once, &create_mutex);
    return *the_mutex.load(std::memory_order_acquire);
}

std::string current_directory_bytes() {
    std::string path;
    int error = 0;
    {
        boost::unique_lock<boost::mutex> const lock(current_directory_mutex());
        error = platform::current_directory(path);
    }
    if (error != 0) {
        throw_filesystem_error(error, std::string());
    }
    return path;
}

}  // namespace detail

namespace {

bool change_current_path_at(std::string const& path) {
    int error = 0;
    {
        boost::unique_lock<boost::mutex> const lock(detail::current_directory_mutex());
        error = detail::platform::change_directory(path);
    }
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
    return true;
}

}  // namespace

bool change_current_path(fl::i18n::ustring const& path) {
    return change_current_path_at(detail::system_bytes(path));
}

bool change_current_path(upath const& path) {
    return change_current_path_at(detail::system_bytes(path));
}

fl::i18n::ustring get_current_path() {
    return detail::from_filesystem(detail::current_directory_bytes());
}

}  // namespace filesystem
}  // namespace fl
