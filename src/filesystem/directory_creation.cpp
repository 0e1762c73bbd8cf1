#include <fl/filesystem/modifying_operations.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/operation_arguments.hpp"
#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

constexpr mode_t directory_mode = 0775;

void create_directory_at(std::string const& path) {
    if (path.empty()) {
        return;
    }
    if (path == "/") {
        throw_filesystem_error(EEXIST, path);
    }
    struct stat info {};
    int error = detail::platform::stat_path(path, info);
    if (error == 0) {
        throw_filesystem_error(EEXIST, path);
    }
    if (error != ENOENT) {
        throw_filesystem_error(error, path);
    }
    error = detail::platform::make_directory(path, directory_mode);
    if (error != 0) {
        throw_filesystem_error(error, path);
    }
}

bool has_parent_element(fl::i18n::ustring const& text) {
    std::size_t start = 0;
    while (start <= text.size()) {
        auto end = text.find(u'/', start);
        if (end == fl::i18n::ustring::npos) {
            end = text.size();
        }
        if (text.compare(start, end - start, u"..") == 0) {
            return true;
        }
        start = end + 1;
    }
    return false;
}

void create_directories_at(fl::i18n::ustring const& text) {
    if (text.empty()) {
        return;
    }
    if (has_parent_element(text)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    std::string const path = detail::to_filesystem(text);
    for (std::size_t i = 1; i < path.size(); ++i) {
        if (path[i] != '/') {
            continue;
        }
        std::string const prefix = path.substr(0, i);
        struct stat info {};
        int error = detail::platform::stat_path(prefix, info);
        if (error == ENOENT) {
            // Another process may create the same parent meanwhile; that is no failure.
            error = detail::platform::make_directory(prefix, directory_mode);
            if (error == EEXIST) {
                error = 0;
            }
        }
        if (error != 0) {
            throw_filesystem_error(error, prefix);
        }
    }
    // The full path, unlike its parents, must not exist yet.
    create_directory_at(path);
}

}  // namespace

void create_directory(fl::i18n::ustring const& path) {
    create_directory_at(detail::system_bytes(path));
}

void create_directory(upath const& path) {
    create_directory_at(detail::system_bytes(path));
}

void create_directories(fl::i18n::ustring const& path) {
    if (path.empty()) {
        return;
    }
    create_directories_at(detail::native_text(path));
}

void create_directories(upath const& path) {
    create_directories_at(detail::native_text(path));
}

}  // namespace filesystem
}  // namespace fl
