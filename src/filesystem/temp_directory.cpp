#include <fl/filesystem/temporary_files.hpp>

#include <fl/filesystem/filename_converter.hpp>
#include <fl/filesystem/filesystem_error.hpp>
#include <fl/filesystem/fsys_exception.hpp>
#include <fl/filesystem/path_algebra.hpp>

#include "common/throw_exception.hpp"
#include "platform/posix_platform.hpp"
#include "platform/process_environment.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <exception>
#include <string>
#include <vector>

namespace fl {
namespace filesystem {

namespace {

char const* const temp_variables[] = {"TMPDIR", "TMP", "TEMP"};
char const* const last_resort = "/tmp";

std::vector<std::string> candidates() {
    std::vector<std::string> result;
    for (char const* name : temp_variables) {
        char const* const value = fl::i18n::detail::platform::environment_value(name);
        if (value != nullptr && *value != '\0') {
            result.emplace_back(value);
        }
    }
    result.emplace_back(last_resort);
    return result;
}

// 0 when the directory can serve, else the reason it can't. A stat failure other than a
// missing file is thrown, without a path.
int unusable(std::string const& directory) {
    struct stat info {};
    int const error = detail::platform::stat_path(directory, info);
    if (error == ENOENT) {
        return ENOENT;
    }
    if (error != 0) {
        throw_filesystem_error(error, std::string());
    }
    if (!S_ISDIR(info.st_mode)) {
        return ENOTDIR;
    }
    return detail::platform::access_path(directory, R_OK | W_OK);
}

// The outcome of the last candidate that failed: a code, or an exception taken while testing.
struct failure_record {
    int error = 0;
    std::exception_ptr exception;
    std::string candidate;
    bool any = false;
};

[[noreturn]] void report(failure_record const& failure) {
    if (failure.exception) {
        std::rethrow_exception(failure.exception);
    }
    if (failure.any && failure.error != 0) {
        throw_filesystem_error(failure.error, failure.candidate);
    }
    fl::detail::throw_exception(TempEnvNotSpecified());
}

}  // namespace

fl::i18n::ustring temp_directory_name() {
    std::vector<std::string> const tried = candidates();
    std::string const* chosen = nullptr;
    failure_record failure;
    for (std::string const& candidate : tried) {
        try {
            int const error = unusable(candidate);
            if (error == 0) {
                chosen = &candidate;
                break;
            }
            failure = failure_record{error, nullptr, candidate, true};
        } catch (...) {
            failure = failure_record{0, std::current_exception(), candidate, true};
        }
    }
    if (chosen == nullptr) {
        report(failure);
    }
    codecvt_filesystem_to_ustring const decode(true);
    return detail::make_native_form(decode.do_convert(chosen->data(), chosen->size()), true);
}

}  // namespace filesystem
}  // namespace fl
