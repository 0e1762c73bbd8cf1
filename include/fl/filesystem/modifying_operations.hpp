#ifndef FL_FILESYSTEM_MODIFYING_OPERATIONS_HPP
#define FL_FILESYSTEM_MODIFYING_OPERATIONS_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

namespace fl {
namespace filesystem {

// Changes to the file system. Each stops at its first failure and undoes nothing: what was done
// stays done. ustring arguments are cleaned (native form, tilde expansion) first.

// request: permission bits with file_status::perms_add, perms_remove or perms_symlink; the
// attribute flags are dropped. Changing a link's own permissions throws InvalidOperation.
FL_I18N_API void permissions(fl::i18n::ustring const& path, unsigned int request);
FL_I18N_API void permissions(upath const& path, unsigned int request);

// Sets the modification time and keeps the access time; not-a-date-time throws
// InvalidArgument. Times are cut to 32 bits on the way.
FL_I18N_API void last_write_time(fl::i18n::ustring const& path,
                                 boost::posix_time::ptime const& time);
FL_I18N_API void last_write_time(upath const& path, boost::posix_time::ptime const& time);

// New directories get mode 0775. An existing path, "/" included, throws FileExistsError; the
// empty path does nothing.
FL_I18N_API void create_directory(fl::i18n::ustring const& path);
FL_I18N_API void create_directory(upath const& path);
// Creates the missing parents too, tolerating a parent that another process makes meanwhile;
// the full path must not exist yet. A ".." element throws InvalidArgument before anything.
FL_I18N_API void create_directories(fl::i18n::ustring const& path);
FL_I18N_API void create_directories(upath const& path);

// A link whose name exists is refused with FileExistsError. flags has no meaning here.
FL_I18N_API void create_symlink(fl::i18n::ustring const& target, fl::i18n::ustring const& link,
                                unsigned int flags = 0);
FL_I18N_API void create_symlink(upath const& target, upath const& link, unsigned int flags = 0);

// Files and links are unlinked, empty directories removed; anything else is InvalidArgument.
// A missing path throws PathNotFound; the empty path does nothing.
FL_I18N_API void remove(fl::i18n::ustring const& path);
FL_I18N_API void remove(upath const& path);
// The same, emptying directories first, depth first.
FL_I18N_API void remove_all(fl::i18n::ustring const& path);
FL_I18N_API void remove_all(upath const& path);

// Does nothing when either path is empty.
FL_I18N_API void rename(fl::i18n::ustring const& old_path, fl::i18n::ustring const& new_path);
FL_I18N_API void rename(upath const& old_path, upath const& new_path);

// The target of a link, in native form with tilde expansion.
FL_I18N_API fl::i18n::ustring read_symlink(fl::i18n::ustring const& path);
FL_I18N_API upath read_symlink(upath const& path);

// What copy_file does when the target exists.
enum copy_option : unsigned int {
    fail_if_exists = 0,
    overwrite_if_exists = 1,
};

// Links are recreated, not followed; everything else is copied as boost::filesystem copies it.
FL_I18N_API void copy(fl::i18n::ustring const& from, fl::i18n::ustring const& to);
FL_I18N_API void copy(upath const& from, upath const& to);
FL_I18N_API void copy_symlink(fl::i18n::ustring const& from, fl::i18n::ustring const& to);
FL_I18N_API void copy_symlink(upath const& from, upath const& to);
FL_I18N_API void copy_file(fl::i18n::ustring const& from, fl::i18n::ustring const& to,
                           copy_option option);
FL_I18N_API void copy_file(upath const& from, upath const& to, copy_option option);
// Copies the directory entry only, not its contents.
FL_I18N_API void copy_directory(fl::i18n::ustring const& from, fl::i18n::ustring const& to);
FL_I18N_API void copy_directory(upath const& from, upath const& to);

}  // namespace filesystem
}  // namespace fl

#endif
