#ifndef FL_FILESYSTEM_PATH_RESOLUTION_HPP
#define FL_FILESYSTEM_PATH_RESOLUTION_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace filesystem {

// Whether two paths name the same file. Two empty paths throw InvalidArgument; one empty path
// is simply not equivalent.
FL_I18N_API bool equivalent(fl::i18n::ustring const& a, fl::i18n::ustring const& b);
FL_I18N_API bool equivalent(upath const& a, upath const& b);

// The real path of an existing file, relative paths taken against base (the current directory
// when base is empty; a relative base throws InvalidArgument). A missing file throws
// PathNotFound without the path.
FL_I18N_API fl::i18n::ustring canonical(fl::i18n::ustring const& path,
                                        fl::i18n::ustring const& base);
FL_I18N_API upath canonical(upath const& path, upath const& base);
// The same on this platform, which has no volumes.
FL_I18N_API fl::i18n::ustring get_pathname_from_volume(fl::i18n::ustring const& path,
                                                       fl::i18n::ustring const& base);
FL_I18N_API upath get_pathname_from_volume(upath const& path, upath const& base);

// base + "/" + path for a relative path, as text only: dot elements stay and nothing is asked
// of the file system but the current directory for an empty base.
FL_I18N_API fl::i18n::ustring absolute(fl::i18n::ustring const& path,
                                       fl::i18n::ustring const& base);
FL_I18N_API upath absolute(upath const& path, upath const& base);

// The current directory is process-wide state: these and the reading of it by canonical and
// absolute share one lock.
FL_I18N_API bool change_current_path(fl::i18n::ustring const& path);
FL_I18N_API bool change_current_path(upath const& path);
FL_I18N_API fl::i18n::ustring get_current_path();

// The installation root: the directory above "bin" (and "bin/x64linux") on the way up from
// this library's file; empty when the library can't find its file. Computed once.
FL_I18N_API fl::i18n::ustring get_install_path();

}  // namespace filesystem
}  // namespace fl

#endif
