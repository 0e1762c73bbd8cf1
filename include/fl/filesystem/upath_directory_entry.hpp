#ifndef FL_FILESYSTEM_UPATH_DIRECTORY_ENTRY_HPP
#define FL_FILESYSTEM_UPATH_DIRECTORY_ENTRY_HPP

#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/shared_ptr.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

struct file_attribute_context;
class upath_directory_iterator_impl;

}  // namespace detail

class upath_directory_entry;

namespace detail {

// The name exactly as the system gave it, for tools that show names the file system encoding
// can't read.
FL_I18N_API std::string raw_filename(upath_directory_entry const& entry);

}  // namespace detail

// The entry a directory iterator stands on. It keeps the name as the bytes the system gave, and
// each accessor decodes them anew (leniently: bytes the file system encoding can't read become
// substitutes). Copies share one record, which the iterator's next read overwrites.
class FL_I18N_API upath_directory_entry {
public:
    upath_directory_entry();

    fl::i18n::ustring filename() const;
    fl::i18n::ustring pathname() const;
    fl::i18n::ustring full_pathname() const;
    // There are no alternative names on this platform.
    fl::i18n::ustring alternative_filename() const { return fl::i18n::ustring(); }

    // file_status type constants. type is the entry itself, target_type what a link leads to;
    // the directory's own record answers where it can, else lstat or stat. A missing target is
    // file_not_found; any other failure throws with the entry's path.
    unsigned int type() const;
    unsigned int target_type() const;
    unsigned int target_type_without_validation() const { return target_type(); }

    file_status status() const;
    file_status symlink_status() const;

private:
    friend class detail::upath_directory_iterator_impl;
    friend std::string detail::raw_filename(upath_directory_entry const& entry);

    boost::shared_ptr<detail::file_attribute_context> record_;
};

}  // namespace filesystem
}  // namespace fl

#endif
