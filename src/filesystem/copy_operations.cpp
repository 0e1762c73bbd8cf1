#include <fl/filesystem/modifying_operations.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/filesystem/path_resolution.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/link_primitives.hpp"
#include "filesystem/operation_arguments.hpp"
#include "filesystem/stat_conversion.hpp"
#include "platform/posix_platform.hpp"

#include <boost/filesystem/operations.hpp>
#include <boost/system/error_code.hpp>

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

namespace bfs = boost::filesystem;

// boost reports through an error code whose value is an errno value on this platform.
void check(boost::system::error_code const& ec, std::string const& path) {
    if (ec) {
        throw_filesystem_error(ec.value(), path);
    }
}

void copy_at(std::string const& from, std::string const& to) {
    struct stat info {};
    int const error = detail::platform::lstat_path(from, info);
    if (error != 0) {
        throw_filesystem_error(error, from);
    }
    unsigned int const type = detail::file_type_of(info.st_mode);
    if (type == file_status::symlink_file) {
        // A link is recreated, never followed.
        fl::i18n::ustring const target = detail::read_symlink_at(from);
        if (target.empty()) {
            fl::detail::throw_exception(InvalidArgument());
        }
        detail::create_symlink_at(detail::to_filesystem(target), to);
        return;
    }
    if (type == file_status::reparse_file) {
        fl::detail::throw_exception(InvalidArgument());
    }
    boost::system::error_code ec;
    bfs::copy(bfs::path(from), bfs::path(to), ec);
    check(ec, from);
}

void copy_file_at(std::string const& from, std::string const& to, copy_option option) {
    boost::system::error_code ec;
    bfs::copy_file(bfs::path(from), bfs::path(to),
                   option == overwrite_if_exists ? bfs::copy_options::overwrite_existing
                                                 : bfs::copy_options::none,
                   ec);
    check(ec, from);
}

void copy_directory_at(std::string const& from, std::string const& to) {
    boost::system::error_code ec;
    bfs::copy_directory(bfs::path(from), bfs::path(to), ec);
    check(ec, from);
}

bool equivalent_at(std::string const& a, std::string const& b) {
    if (a.empty() && b.empty()) {
        fl::detail::throw_exception(InvalidArgument());
    }
    if (a.empty() || b.empty()) {
        return false;
    }
    boost::system::error_code ec;
    bool const same = bfs::equivalent(bfs::path(a), bfs::path(b), ec);
    check(ec, a);
    return same;
}

}  // namespace

void copy(fl::i18n::ustring const& from, fl::i18n::ustring const& to) {
    copy_at(detail::system_bytes(from), detail::system_bytes(to));
}

void copy(upath const& from, upath const& to) {
    copy_at(detail::system_bytes(from), detail::system_bytes(to));
}

void copy_file(fl::i18n::ustring const& from, fl::i18n::ustring const& to, copy_option option) {
    copy_file_at(detail::system_bytes(from), detail::system_bytes(to), option);
}

void copy_file(upath const& from, upath const& to, copy_option option) {
    copy_file_at(detail::system_bytes(from), detail::system_bytes(to), option);
}

void copy_directory(fl::i18n::ustring const& from, fl::i18n::ustring const& to) {
    copy_directory_at(detail::system_bytes(from), detail::system_bytes(to));
}

void copy_directory(upath const& from, upath const& to) {
    copy_directory_at(detail::system_bytes(from), detail::system_bytes(to));
}

bool equivalent(fl::i18n::ustring const& a, fl::i18n::ustring const& b) {
    return equivalent_at(detail::system_bytes(a), detail::system_bytes(b));
}

bool equivalent(upath const& a, upath const& b) {
    return equivalent_at(detail::system_bytes(a), detail::system_bytes(b));
}

}  // namespace filesystem
}  // namespace fl
