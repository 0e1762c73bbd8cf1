#ifndef FL_PLATFORM_POSIX_PLATFORM_HPP
#define FL_PLATFORM_POSIX_PLATFORM_HPP

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstdio>
#include <ctime>
#include <string>

namespace fl {
namespace filesystem {
namespace detail {
namespace platform {

// Every system call of the filesystem layer. Each function clears errno, makes the call and
// reads errno at once: it returns 0 on success and the error number otherwise, so no later call
// can overwrite the cause before the caller maps it. Paths are bytes in the file system
// encoding.

int stat_path(std::string const& path, struct stat& info);
int lstat_path(std::string const& path, struct stat& info);
int access_path(std::string const& path, int mode);
int make_directory(std::string const& path, mode_t mode);
int remove_directory(std::string const& path);
int unlink_path(std::string const& path);
int rename_path(std::string const& from, std::string const& to);
int make_symlink(std::string const& target, std::string const& link);
int change_mode(std::string const& path, mode_t mode);
int set_file_times(std::string const& path, std::time_t access_time, std::time_t modification_time);
int change_directory(std::string const& path);

// readlink into 1024 bytes, growing by 1024 while the result fills the buffer exactly.
// std::bad_alloc passes to the caller.
int read_link(std::string const& path, std::string& target);
// realpath with a buffer that the C library allocates and this function frees.
int resolve_path(std::string const& path, std::string& resolved);
// getcwd into 1024 bytes, and into a buffer of the C library's choice when that is too short.
int current_directory(std::string& path);

// One open directory, read with readdir_r and closed when the object goes.
class directory_stream {
public:
    directory_stream() = default;
    directory_stream(directory_stream const&) = delete;
    directory_stream& operator=(directory_stream const&) = delete;
    ~directory_stream();

    int open(std::string const& path);
    // Sets at_end after the last entry; "." and ".." are delivered like any other entry.
    int read(std::string& name, bool& at_end);
    // The same into a record the caller keeps, so its d_type and raw name bytes outlive the
    // call; the stream's own buffer is left alone.
    int read_into(struct dirent& entry, bool& at_end);
    bool is_open() const noexcept { return handle_ != nullptr; }
    int close();

private:
    DIR* handle_ = nullptr;
    struct dirent entry_ {};
};

// Home directories from the user database (getpwuid_r, getpwnam_r, a 1024-byte buffer each);
// empty when there is no entry, no directory in it, or the entry needs a larger buffer.
std::string home_directory_of_current_user();
std::string home_directory_of_user(std::string const& name);
// HOME, an unset variable reading as empty.
std::string home_variable();

// fopen and freopen as they are: unlike the calls above they leave errno to the caller, who
// reports by a null stream the C way.
std::FILE* open_file(std::string const& path, std::string const& mode);
std::FILE* reopen_file(std::string const& path, std::string const& mode, std::FILE* stream);

// The file that the module holding the address was loaded from; empty when dladdr fails.
std::string module_path_of(void const* address);

}  // namespace platform
}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
