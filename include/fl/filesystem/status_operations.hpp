#ifndef FL_FILESYSTEM_STATUS_OPERATIONS_HPP
#define FL_FILESYSTEM_STATUS_OPERATIONS_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace filesystem {

// Each operation on a ustring first brings the text to native form with tilde expansion; the
// upath form takes its pathname as it stands. Failures are exceptions of the FsysExceptionBase
// family; only exists and access answer a question with false.

// False for the empty path and where stat says ENOENT or ENOTDIR; other errors throw.
FL_I18N_API bool exists(fl::i18n::ustring const& path);
FL_I18N_API bool exists(upath const& path);

// A missing file (or the empty path) gives file_not_found; every other failure throws, ENOTDIR
// included, without the path. symlink_status looks at a link itself.
FL_I18N_API file_status status(fl::i18n::ustring const& path);
FL_I18N_API file_status status(upath const& path);
FL_I18N_API file_status symlink_status(fl::i18n::ustring const& path);
FL_I18N_API file_status symlink_status(upath const& path);

// Type, modification time and size only; ENOENT and EINVAL give file_not_found.
FL_I18N_API file_status_light status_express_light(fl::i18n::ustring const& path);

// Bits of an access request: existence alone, or any of reading, writing and execution.
enum access_mask : unsigned int {
    access_exists = 1,
    access_read = 2,
    access_write = 4,
    access_execute = 8,
};

// True when the process may access the file as asked. Denial is false, and so is writing on a
// read-only file system; a zero mask or a bit above 8 throws InvalidArgument.
FL_I18N_API bool access(fl::i18n::ustring const& path, unsigned int mask);
FL_I18N_API bool access(upath const& path, unsigned int mask);

}  // namespace filesystem
}  // namespace fl

#endif
