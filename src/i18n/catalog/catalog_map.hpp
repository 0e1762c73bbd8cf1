#ifndef FL_I18N_CATALOG_CATALOG_MAP_HPP
#define FL_I18N_CATALOG_CATALOG_MAP_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/shared_ptr.hpp>
#include <boost/unordered_set.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

// "a:b:c" gives "a/%S/b/c.xml", the file of that catalog below a resources root with the
// locale in place of "%S"; a name without a sub-component, or ending in ":", gives "".
ustring catalog_file_pattern(std::string const& catalog_id);

// The catalogs below dir as ":b", ":b:c", ... (sub-directories and .xml files, in the
// directory's order, links not followed). A name that is not ASCII throws CvtInvalidCharacter.
std::vector<std::string> list_catalog_names(fl::filesystem::upath const& dir);

// Appends every catalog_map.xml below dir (links followed), in the directories' own order.
void find_catalog_maps(fl::filesystem::upath const& dir, std::vector<fl::filesystem::upath>& found);

// The names one level below prefix that the catalog maps of the roots list; with an empty
// prefix, the components of the roots that have a catalog map. A broken map gives what was read
// before the fault; a key that is not ASCII throws.
boost::shared_ptr<boost::unordered_set<ustring>> collect_catalog_names(
    std::vector<fl::filesystem::upath> const& roots, ustring const& prefix);

}  // namespace i18n
}  // namespace fl

#endif
