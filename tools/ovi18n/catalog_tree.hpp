#ifndef OVI18N_TOOL_CATALOG_TREE_HPP
#define OVI18N_TOOL_CATALOG_TREE_HPP

#include <string>
#include <vector>

namespace ovi18n_tool {

// One catalog file of a resources tree: resources/C/L/S1/.../Sn.xml is catalog C:S1:...:Sn in
// locale L.
struct catalog_file_ref {
    std::string catalog;
    std::string locale;
    std::string path;
};

struct resource_tree {
    std::vector<catalog_file_ref> files;  // by catalog, then locale
    std::vector<std::string> locales;     // every locale directory seen, sorted
    // Files ending in ".xml" whose path makes no valid catalog name: nothing can ask for them.
    std::vector<std::string> bad_names;
};

// The installation root: `given`, or the one the library was installed in.
std::string installation_root(std::string const& given);
// root/resources, or a one-line complaint on standard error and an empty text.
std::string resources_directory(std::string const& root);

resource_tree scan_resource_tree(std::string const& resources);

// Where catalog C:S1:...:Sn of a locale has to be: resources/C/locale/S1/.../Sn.xml.
std::string catalog_path(std::string const& resources, std::string const& catalog,
                         std::string const& locale);

// The locale that lookups fall back to last, and that the other locales are compared with.
std::string reference_locale();

}  // namespace ovi18n_tool

#endif
