#include <fl/filesystem/stream_opening.hpp>

#include <fl/filesystem/access_form.hpp>

#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {

using fl::i18n::ustring;
using name_converter = fl::i18n::converter<char, char16_t>;

namespace {

// The refusals that come before any conversion; each sets errno and ends the call.
bool refused(ustring const& path, std::string const& mode) {
    if (path.empty() || path.front() == u'\0' || mode.empty()) {
        errno = EINVAL;
        return true;
    }
    return false;
}

// A text ending in a separator can only name a directory, which no mode of fopen accepts; the
// root is no exception.
bool refused_as_directory(ustring const& path) {
    if (path.back() == u'/') {
        errno = EISDIR;
        return true;
    }
    return false;
}

// fopen, or freopen when a stream is given. The name becomes bytes only once the checks are
// passed. A native text is taken as it stands, so even "/" reaches the system.
template <class AccessForm>
std::FILE* open_checked(ustring const& path, bool native, std::string const& mode,
                        std::FILE* stream, AccessForm access_form) {
    errno = 0;
    if (refused(path, mode) || (!native && refused_as_directory(path))) {
        return nullptr;
    }
    std::string const bytes = access_form();
    return stream == nullptr ? detail::platform::open_file(bytes, mode)
                             : detail::platform::reopen_file(bytes, mode, stream);
}

bool refused_stream(std::FILE* stream) {
    if (stream == nullptr) {
        errno = EINVAL;
        return true;
    }
    return false;
}

}  // namespace

std::FILE* fopen(ustring const& path, std::string const& mode) {
    return open_checked(path, false, mode, nullptr,
                        [&] { return detail::make_native_access_form_with_cleanup(path); });
}

std::FILE* fopen(ustring const& path, std::string const& mode, name_converter const& cvt) {
    return open_checked(path, false, mode, nullptr,
                        [&] { return detail::make_native_access_form_with_cleanup(path, cvt); });
}

std::FILE* fopen(upath const& path, std::string const& mode) {
    return open_checked(path.pathname(), true, mode, nullptr, [&] { return path.access_form(); });
}

std::FILE* fopen(upath const& path, std::string const& mode, name_converter const& cvt) {
    return open_checked(path.pathname(), true, mode, nullptr,
                        [&] { return detail::make_native_access_form(path.pathname(), cvt); });
}

std::FILE* freopen(ustring const& path, std::string const& mode, std::FILE* stream) {
    if (refused_stream(stream)) {
        return nullptr;
    }
    return open_checked(path, false, mode, stream,
                        [&] { return detail::make_native_access_form_with_cleanup(path); });
}

std::FILE* freopen(ustring const& path, std::string const& mode, std::FILE* stream,
                   name_converter const& cvt) {
    if (refused_stream(stream)) {
        return nullptr;
    }
    return open_checked(path, false, mode, stream,
                        [&] { return detail::make_native_access_form_with_cleanup(path, cvt); });
}

std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream) {
    if (refused_stream(stream)) {
        return nullptr;
    }
    return open_checked(path.pathname(), true, mode, stream, [&] { return path.access_form(); });
}

std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream,
                   name_converter const& cvt) {
    if (refused_stream(stream)) {
        return nullptr;
    }
    return open_checked(path.pathname(), true, mode, stream,
                        [&] { return detail::make_native_access_form(path.pathname(), cvt); });
}

}  // namespace filesystem
}  // namespace fl
