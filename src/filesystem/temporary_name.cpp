#include <fl/filesystem/temporary_files.hpp>

#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/random_name_text.hpp"

#include <string>

namespace fl {
namespace filesystem {

using fl::i18n::ustring;

ustring tmpnam(ustring const& directory, ustring const& prefix, ustring const& suffix) {
    ustring const base = directory.empty() ? temp_directory_name() : directory;
    std::string const random = detail::random_name_text();
    if (random.empty()) {
        return ustring();
    }
    ustring name = detail::make_native_form(base, true);
    if (name.empty() || name.back() != u'/') {
        name += u'/';
    }
    name += prefix;
    // The random text is ASCII by construction.
    name.append(random.begin(), random.end());
    if (!suffix.empty() && suffix.front() != u'.') {
        name += u'.';
    }
    name += suffix;
    return name;
}

}  // namespace filesystem
}  // namespace fl
