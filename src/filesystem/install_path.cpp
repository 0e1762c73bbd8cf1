#include <fl/filesystem/path_resolution.hpp>

#include <fl/filesystem/filename_converter.hpp>
#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/install_root.hpp"
#include "platform/posix_platform.hpp"

#include <boost/thread/once.hpp>

#include <atomic>

namespace fl {
namespace filesystem {
namespace {

boost::once_flag install_path_once = BOOST_ONCE_INIT;
// Never deleted. Published through an atomic as well, since the once-flag commits inside Boost's
// compiled library where a race detector can't follow it.
std::atomic<fl::i18n::ustring*> install_path{nullptr};

// Up from the module's file to the directory that holds "bin" (or "bin/x64linux"); empty when
// there is none on the way.
std::string root_above_bin(std::string const& module_path) {
    std::string text = detail::make_native_form(module_path, false);
    for (;;) {
        if (text.empty()) {
            return {};
        }
        std::string last = detail::extract_filename(text);
        if (last == "x64linux") {
            detail::remove_filename(text);
            if (text.empty()) {
                return {};
            }
            last = detail::extract_filename(text);
        }
        if (last == "bin") {
            detail::remove_filename(text);
            return text;
        }
        detail::remove_filename(text);
    }
}

std::string module_file() {
    // Any address inside this library tells the loader which file it came from.
    std::string const path = detail::platform::module_path_of(&install_path_once);
    struct stat info {};
    std::string resolved;
    if (path.empty() || detail::platform::stat_path(path, info) != 0 ||
        detail::platform::resolve_path(path, resolved) != 0) {
        return {};
    }
    return resolved;
}

void compute_install_path() {
    std::string const root = detail::find_install_root();
    codecvt_filesystem_to_ustring const decoder(true);
    install_path.store(
        new fl::i18n::ustring(root.empty() ? fl::i18n::ustring()
                                           : decoder.do_convert(root.data(), root.size())),
        std::memory_order_release);
}

}  // namespace

std::string detail::find_install_root() {
    return root_above_bin(module_file());
}

fl::i18n::ustring get_install_path() {
    boost::call_once(install_path_once, &compute_install_path);
    return *install_path.load(std::memory_order_acquire);
}

}  // namespace filesystem
}  // namespace fl
