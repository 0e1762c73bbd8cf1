#include "platform/posix_platform.hpp"

#include "platform/process_environment.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace fl {
namespace filesystem {
namespace detail {
namespace platform {
namespace {

constexpr std::size_t path_buffer_size = 1024;
constexpr std::size_t user_entry_buffer_size = 1024;

// The outcome of a call that reports through a return of -1 and errno.
int outcome(int result) {
    return result == 0 ? 0 : errno;
}

struct c_free {
    void operator()(char* p) const noexcept { std::free(p); }
};

std::string directory_of(passwd const& entry) {
    return entry.pw_dir != nullptr ? std::string(entry.pw_dir) : std::string();
}

}  // namespace

int stat_path(std::string const& path, struct stat& info) {
    errno = 0;
    return outcome(::stat(path.c_str(), &info));
}

int lstat_path(std::string const& path, struct stat& info) {
    errno = 0;
    return outcome(::lstat(path.c_str(), &info));
}

int access_path(std::string const& path, int mode) {
    errno = 0;
    return outcome(::access(path.c_str(), mode));
}

int make_directory(std::string const& path, mode_t mode) {
    errno = 0;
    return outcome(::mkdir(path.c_str(), mode));
}

int remove_directory(std::string const& path) {
    errno = 0;
    return outcome(::rmdir(path.c_str()));
}

int unlink_path(std::string const& path) {
    errno = 0;
    return outcome(::unlink(path.c_str()));
}

int rename_path(std::string const& from, std::string const& to) {
    errno = 0;
    return outcome(::rename(from.c_str(), to.c_str()));
}

int make_symlink(std::string const& target, std::string const& link) {
    errno = 0;
    return outcome(::symlink(target.c_str(), link.c_str()));
}

int change_mode(std::string const& path, mode_t mode) {
    errno = 0;
    return outcome(::fchmodat(AT_FDCWD, path.c_str(), mode, 0));
}

int set_file_times(std::string const& path, std::time_t access_time,
                   std::time_t modification_time) {
    utimbuf times{};
    times.actime = access_time;
    times.modtime = modification_time;
    errno = 0;
    return outcome(::utime(path.c_str(), &times));
}

int change_directory(std::string const& path) {
    errno = 0;
    return outcome(::chdir(path.c_str()));
}

int read_link(std::string const& path, std::string& target) {
    std::string buffer(path_buffer_size, '\0');
    for (;;) {
        errno = 0;
        ssize_t const length = ::readlink(path.c_str(), &buffer[0], buffer.size());
        if (length < 0) {
            return errno;
        }
        // A full buffer may mean a longer target that was cut: try again with more room.
        if (static_cast<std::size_t>(length) < buffer.size()) {
            buffer.resize(static_cast<std::size_t>(length));
            target.swap(buffer);
            return 0;
        }
        buffer.resize(buffer.size() + path_buffer_size);
    }
}

int resolve_path(std::string const& path, std::string& resolved) {
    errno = 0;
    std::unique_ptr<char, c_free> const result(::realpath(path.c_str(), nullptr));
    if (!result) {
        return errno;
    }
    resolved.assign(result.get());
    return 0;
}

int current_directory(std::string& path) {
    char buffer[path_buffer_size];
    errno = 0;
    if (::getcwd(buffer, sizeof buffer) != nullptr) {
        path.assign(buffer);
        return 0;
    }
    if (errno != ERANGE) {
        return errno;
    }
    errno = 0;
    std::unique_ptr<char, c_free> const long_path(::getcwd(nullptr, 0));
    if (!long_path) {
        return errno;
    }
    path.assign(long_path.get());
    return 0;
}

directory_stream::~directory_stream() {
    if (handle_ != nullptr) {
        ::closedir(handle_);
    }
}

int directory_stream::open(std::string const& path) {
    errno = 0;
    handle_ = ::opendir(path.c_str());
    return handle_ != nullptr ? 0 : errno;
}

int directory_stream::read(std::string& name, bool& at_end) {
    int const error = read_into(entry_, at_end);
    if (error == 0 && !at_end) {
        name.assign(entry_.d_name);
    }
    return error;
}

int directory_stream::read_into(struct dirent& entry, bool& at_end) {
    dirent* result = nullptr;
    // readdir_r keeps the reading reentrant across threads that share nothing but the library.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    int const error = ::readdir_r(handle_, &entry, &result);
#pragma GCC diagnostic pop
    if (error != 0) {
        return error;
    }
    at_end = result == nullptr;
    return 0;
}

int directory_stream::close() {
    DIR* const handle = handle_;
    handle_ = nullptr;
    errno = 0;
    return handle != nullptr ? outcome(::closedir(handle)) : 0;
}

std::string home_directory_of_current_user() {
    passwd entry{};
    passwd* result = nullptr;
    char buffer[user_entry_buffer_size];
    if (::getpwuid_r(::getuid(), &entry, buffer, sizeof buffer, &result) != 0) {
        return {};
    }
    // A user without an entry is outside what the lookup supports; treat it as no home.
    return result != nullptr ? directory_of(entry) : std::string();
}

std::string home_directory_of_user(std::string const& name) {
    passwd entry{};
    passwd* result = nullptr;
    char buffer[user_entry_buffer_size];
    if (::getpwnam_r(name.c_str(), &entry, buffer, sizeof buffer, &result) != 0 ||
        result == nullptr) {
        return {};
    }
    return directory_of(entry);
}

std::string home_variable() {
    char const* const home = fl::i18n::detail::platform::environment_value("HOME");
    return home != nullptr ? std::string(home) : std::string();
}

std::FILE* open_file(std::string const& path, std::string const& mode) {
    errno = 0;
    return std::fopen(path.c_str(), mode.c_str());
}

std::FILE* reopen_file(std::string const& path, std::string const& mode, std::FILE* stream) {
    errno = 0;
    return std::freopen(path.c_str(), mode.c_str(), stream);
}

std::string module_path_of(void const* address) {
    Dl_info info{};
    if (::dladdr(address, &info) == 0 || info.dli_fname == nullptr) {
        return {};
    }
    return info.dli_fname;
}

}  // namespace platform
}  // namespace detail
}  // namespace filesystem
}  // namespace fl
