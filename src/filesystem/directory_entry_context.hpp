#ifndef FL_FILESYSTEM_DIRECTORY_ENTRY_CONTEXT_HPP
#define FL_FILESYSTEM_DIRECTORY_ENTRY_CONTEXT_HPP

#include <fl/i18n/lcctype/pattern_match.hpp>
#include <fl/i18n/ustring.hpp>

#include "filesystem/wildcard_prefilter.hpp"
#include "platform/posix_platform.hpp"

#include <dirent.h>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The record behind an entry: the directory's bytes and the entry as readdir_r left it.
struct file_attribute_context {
    std::string directory;
    struct dirent entry {};
};

// Reads the entries of one open directory into a record the iterator owns.
class directory_entry_context {
public:
    directory_entry_context(fl::i18n::ustring const& directory, fl::i18n::ustring const& name,
                            struct dirent* entry);
    virtual ~directory_entry_context();
    directory_entry_context(directory_entry_context const&) = delete;
    directory_entry_context& operator=(directory_entry_context const&) = delete;

    // False at the end, after which the directory is closed.
    virtual bool read_next() = 0;

    bool is_open() const noexcept { return stream.is_open(); }
    std::string const& native() const noexcept { return native_directory; }

protected:
    // Throws with reported_path when opendir fails.
    void open(std::string const& reported_path);
    // readdir_r into the record; false at the end, after closing. The name stays in bytes: the
    // entry's accessors decode it anew, so only a pattern, which matches on the text, needs it
    // decoded here, and a plain listing saves one decoding per entry.
    bool read_raw();
    // Where a failing read is reported; built only when a read fails.
    virtual std::string read_error_path() const { return native_directory; }

    fl::i18n::ustring directory;
    fl::i18n::ustring name;
    std::string native_directory;
    platform::directory_stream stream;
    struct dirent* entry;
    unsigned int mode;
    int open_error = 0;
};

class directory_entry_without_wc_support_context : public directory_entry_context {
public:
    explicit directory_entry_without_wc_support_context(fl::i18n::ustring const& directory,
                                                        struct dirent* entry);
    bool read_next() override;
};

class directory_entry_with_wc_support_context : public directory_entry_context {
public:
    directory_entry_with_wc_support_context(fl::i18n::ustring const& directory,
                                            fl::i18n::ustring const& filename,
                                            fl::i18n::ustring const& pattern,
                                            bool tolerate_bad_pattern, struct dirent* entry);
    bool read_next() override;

protected:
    std::string read_error_path() const override;

private:
    fl::i18n::pattern_status matcher;
    wildcard_prefilter prefilter;
};

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
