#ifndef FL_FILESYSTEM_TEMPORARY_FILES_HPP
#define FL_FILESYSTEM_TEMPORARY_FILES_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdio>

namespace fl {
namespace filesystem {

// The first of "TMPDIR", "TMP", "TEMP" (set and not empty) and "/tmp" that is a directory the
// process may read and write, in native form. Later candidates are not looked at. When none
// passes, the failure of the last one is thrown.
FL_I18N_API fl::i18n::ustring temp_directory_name();

// A name only, nothing is created: directory, "/", prefix, a random text of sixteen hexadecimal
// digits in groups of four, then suffix behind a "." unless it brings its own. An empty
// directory means temp_directory_name().
FL_I18N_API fl::i18n::ustring tmpnam(fl::i18n::ustring const& directory,
                                     fl::i18n::ustring const& prefix,
                                     fl::i18n::ustring const& suffix);

// Creates a file under a tmpnam name, opened "wb+", trying up to eleven names. On success name
// receives the file's name; the file stays when it is closed. On failure the result is null,
// name is empty and errno is 0: the cause is not kept. The open is not exclusive, so the
// random text alone keeps names apart.
FL_I18N_API std::FILE* tmpfile(fl::i18n::ustring& name, fl::i18n::ustring const& directory,
                               fl::i18n::ustring const& prefix, fl::i18n::ustring const& suffix);

}  // namespace filesystem
}  // namespace fl

#endif
