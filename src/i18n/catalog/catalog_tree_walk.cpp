#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/upath_constant.hpp>
#include <fl/i18n/codecvt/codecvt_ascii.hpp>

#include "i18n/catalog/catalog_map.hpp"

namespace fl {
namespace i18n {
namespace {

using fl::filesystem::directory_iterator;
using fl::filesystem::file_status;
using fl::filesystem::upath;
using fl::filesystem::upath_constant;

bool is_dot_entry(ustring const& name) {
    return name == upath_constant::CURRENT_DIRECTORY || name == upath_constant::PARENT_DIRECTORY;
}

// ":" and the stem of a file name; catalog names are ASCII, so anything else throws.
std::string catalog_name_part(ustring const& file_name) {
    ustring const stem = fl::filesystem::detail::extract_stem(file_name);
    return ":" + codecvt_ustring_to_ascii(false).do_convert(stem.data(), stem.size());
}

}  // namespace

std::vector<std::string> list_catalog_names(upath const& dir) {
    std::vector<std::string> names;
    for (directory_iterator it(dir), end; it != end; ++it) {
        ustring const file_name = it->filename();
        if (is_dot_entry(file_name)) {
            continue;
        }
        // The entry itself: a link is neither a directory nor a catalog here.
        unsigned int const type = it->type();
        if (type == file_status::directory_file) {
            std::string const head = catalog_name_part(file_name);
            for (std::string const& tail : list_catalog_names(upath(it->full_pathname(), false))) {
                names.push_back(head + tail);
            }
        } else if (type == file_status::regular_file &&
                   fl::filesystem::detail::extract_extension(file_name) == u"xml") {
            names.push_back(catalog_name_part(file_name));
        }
    }
    return names;
}

void find_catalog_maps(upath const& dir, std::vector<upath>& found) {
    if (dir.empty()) {
        return;
    }
    for (directory_iterator it(dir), end; it != end; ++it) {
        ustring const file_name = it->filename();
        if (is_dot_entry(file_name)) {
            continue;
        }
        // The map is taken as it is, whatever its type; its siblings are still searched.
        if (file_name == u"catalog_map.xml") {
            found.push_back(upath(it->full_pathname(), false));
            continue;
        }
        unsigned int type = it->type();
        if (type == file_status::symlink_file) {
            type = it->target_type();
        }
        if (type == file_status::directory_file) {
            find_catalog_maps(upath(it->full_pathname(), false), found);
        }
    }
}

}  // namespace i18n
}  // namespace fl
