#include <fl/filesystem/temporary_files.hpp>

#include <fl/filesystem/access_form.hpp>

#include "platform/posix_platform.hpp"

#include <cerrno>

namespace fl {
namespace filesystem {

using fl::i18n::ustring;

namespace {

// Retries after the first attempt; each takes a fresh name.
constexpr int retries = 10;

}  // namespace

std::FILE* tmpfile(ustring& name, ustring const& directory, ustring const& prefix,
                   ustring const& suffix) {
    ustring const base = directory.empty() ? temp_directory_name() : directory;
    // Only a test that names can be made at all; every attempt takes a name of its own.
    if (tmpnam(base, prefix, suffix).empty()) {
        errno = 0;
        name.clear();
        return nullptr;
    }
    ustring candidate = tmpnam(base, prefix, suffix);
    std::FILE* file = nullptr;
    for (int counter = retries;; --counter) {
        // Created exclusively ("x", O_EXCL), unlike a plain "wb+": a file that already has the
        // name is not truncated, and a link planted under it is not followed. This departs on
        // purpose, for safety, from opening with "wb+"; it changes results only when the name
        // is taken, and then the loop goes on with another name.
        file = detail::platform::open_file(detail::make_native_access_form_with_cleanup(candidate),
                                           "wb+x");
        if (file != nullptr || counter < 1) {
            break;
        }
        candidate = tmpnam(base, prefix, suffix);
        if (candidate.empty()) {
            break;
        }
    }
    if (file == nullptr) {
        errno = 0;
        name.clear();
        return nullptr;
    }
    name = candidate;
    return file;
}

}  // namespace filesystem
}  // namespace fl
