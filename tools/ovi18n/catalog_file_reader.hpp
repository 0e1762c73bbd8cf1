#ifndef OVI18N_TOOL_CATALOG_FILE_READER_HPP
#define OVI18N_TOOL_CATALOG_FILE_READER_HPP

#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace ovi18n_tool {

// A place in a catalog file: 1-based line and column (in characters); line 0 is the whole file.
struct file_location {
    std::size_t line = 0;
    std::size_t column = 0;
};

struct catalog_entry {
    std::string key;
    fl::i18n::ustring text;      // as the library stores it: lines trimmed and joined, unescaped
    bool escape_failed = false;  // a backslash escape didn't resolve, so the text became empty
    file_location where;         // the entry's start tag
};

// One catalog file read by the rules of the library's loader, which the tool can't call: the
// same line-by-line feeding of expat without the newlines, the same elements and states, the
// same trimming. What the loader refuses, this refuses too, and says where and why.
struct catalog_file {
    bool loaded = false;
    std::string error;  // why not, when not loaded
    file_location error_at;
    std::vector<catalog_entry> entries;  // in file order, a repeated key each time
    // Passed only because the file ends in a line break, which keeps expat from its final check;
    // an entry still open at the end is dropped.
    bool unclosed = false;
};

catalog_file read_catalog_file(std::string const& path);
catalog_file read_catalog(std::istream& input);

}  // namespace ovi18n_tool

#endif
