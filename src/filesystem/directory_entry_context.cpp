#include "filesystem/directory_entry_context.hpp"

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/i18n/lcctype/character_handling_mode_context.hpp>

#include "common/throw_exception.hpp"

#include <unicode/ustring.h>

namespace fl {
namespace filesystem {
namespace detail {

using fl::i18n::character_handling_mode_context;
using fl::i18n::ustring;

directory_entry_context::directory_entry_context(ustring const& directory, ustring const& name,
                                                 struct dirent* entry)
    : directory(directory),
      name(name),
      native_directory(to_filesystem(directory)),
      entry(entry),
      mode(character_handling_mode_context::default_mode) {}

// A destructor can't report, so a failing closedir of a directory left open is lost here.
directory_entry_context::~directory_entry_context() = default;

void directory_entry_context::open(std::string const& reported_path) {
    open_error = stream.open(native_directory);
    if (open_error != 0) {
        throw_filesystem_error(open_error, reported_path);
    }
    mode = 0;
}

bool directory_entry_context::read_raw() {
    if (!stream.is_open()) {
        return false;
    }
    bool at_end = false;
    int const error = stream.read_into(*entry, at_end);
    if (error != 0) {
        throw_filesystem_error(error, read_error_path());
    }
    if (at_end) {
        int const close_error = stream.close();
        if (close_error != 0) {
            throw_filesystem_error(close_error, std::string());
        }
        return false;
    }
    return true;
}

directory_entry_without_wc_support_context::directory_entry_without_wc_support_context(
    ustring const& directory, struct dirent* entry)
    : directory_entry_context(directory, ustring(), entry) {
    open(native_directory);
}

bool directory_entry_without_wc_support_context::read_next() {
    return read_raw();
}

namespace {

bool is_acceptable_filename(ustring const& filename) {
    // u_strpbrk stops at the first NUL, and so does the test for a second level.
    return !filename.empty() && u_strpbrk(filename.c_str(), u"/") == nullptr;
}

}  // namespace

directory_entry_with_wc_support_context::directory_entry_with_wc_support_context(
    ustring const& directory, ustring const& filename, ustring const& pattern,
    bool tolerate_bad_pattern, struct dirent* entry)
    : directory_entry_context(directory, filename, entry), prefilter(filename, pattern) {
    if (pattern.empty() || !is_acceptable_filename(filename)) {
        fl::detail::throw_exception(InvalidArgument());
    }
    open(native_directory + "/" + to_filesystem(filename));
    // mode is 0 by now: the volume is never asked, so matching is exact in case.
    if (matcher.compile(pattern, character_handling_mode_context(mode)) !=
            fl::i18n::pattern_status::ok &&
        !tolerate_bad_pattern) {
        fl::detail::throw_exception(InvalidArgument());
    }
}

bool directory_entry_with_wc_support_context::read_next() {
    for (;;) {
        if (!read_raw()) {
            return false;
        }
        name = from_filesystem(entry->d_name);
        std::int32_t status = 0;
        if (prefilter.may_match(name) && matcher.match(name, status)) {
            return true;
        }
    }
}

std::string directory_entry_with_wc_support_context::read_error_path() const {
    return native_directory + "/" + to_filesystem(name);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
