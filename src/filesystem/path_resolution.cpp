#include <fl/filesystem/path_resolution.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/current_directory.hpp"
#include "filesystem/operation_arguments.hpp"
#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {
namespace {

// base + "/" + path for a relative path; the current directory stands in for an empty base,
// and a relative base has nothing to anchor it.
template <class String, class CurrentDirectory>
String merged(String const& path, String const& base, CurrentDirectory current_directory) {
    if (detail::is_absolute(path)) {
        return path;
    }
    String result = base.empty() ? current_directory() : base;
    if (!detail::is_absolute(result)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    if (result.back() != '/') {
        result.push_back('/');
    }
    return result.append(path);
}

fl::i18n::ustring canonical_at(std::string const& path, std::string const& base) {
    std::string const full = merged(path, base, &detail::current_directory_bytes);
    struct stat info {};
    int error = detail::platform::stat_path(full, info);
    if (error == ENOENT || error == ENOTDIR) {
        throw_filesystem_error(ENOENT, std::string());
    }
    if (error != 0) {
        throw_filesystem_error(error, full);
    }
    std::string resolved;
    error = detail::platform::resolve_path(full, resolved);
    if (error != 0) {
        throw_filesystem_error(error, full);
    }
    return detail::from_filesystem(resolved);
}

fl::i18n::ustring absolute_text(fl::i18n::ustring const& path, fl::i18n::ustring const& base) {
    return merged(path, base, &get_current_path);
}

}  // namespace

fl::i18n::ustring canonical(fl::i18n::ustring const& path, fl::i18n::ustring const& base) {
    return canonical_at(detail::system_bytes(path), detail::system_bytes(base));
}

upath canonical(upath const& path, upath const& base) {
    return upath(canonical_at(detail::system_bytes(path), detail::system_bytes(base)));
}

fl::i18n::ustring get_pathname_from_volume(fl::i18n::ustring const& path,
                                           fl::i18n::ustring const& base) {
    return canonical(path, base);
}

upath get_pathname_from_volume(upath const& path, upath const& base) {
    return canonical(path, base);
}

fl::i18n::ustring absolute(fl::i18n::ustring const& path, fl::i18n::ustring const& base) {
    return absolute_text(detail::native_text(path), detail::native_text(base));
}

upath absolute(upath const& path, upath const& base) {
    if (path.is_absolute()) {
        return path;
    }
    return upath(absolute_text(path.pathname(), base.pathname()));
}

}  // namespace filesystem
}  // namespace fl
