#ifndef FL_FILESYSTEM_FILESYSTEM_ERROR_HPP
#define FL_FILESYSTEM_FILESYSTEM_ERROR_HPP

#include <fl/i18n/export.hpp>

#include <string>

namespace fl {
namespace filesystem {

// The one place where an errno value becomes an exception of the family: ENOENT PathNotFound,
// EACCES AccessDenied, EEXIST FileExistsError, ENOTDIR NotDirectoryError, EISDIR
// FileIsDirectory, EINVAL InvalidArgument (without the path), ENAMETOOLONG FileNameTooLarge,
// ENOTEMPTY DirectoryNotEmpty, anything else SystemError. A path that can't be decoded is
// reported byte by byte, so the failure is never lost to a second one.
[[noreturn]] FL_I18N_API void throw_filesystem_error(int error, std::string const& native_path);

namespace detail {

[[noreturn]] FL_I18N_API void throw_invalid_operation_exception();

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
