#ifndef OVI18N_TESTS_I18N_CATALOG_CATALOG_TREE_HPP
#define OVI18N_TESTS_I18N_CATALOG_CATALOG_TREE_HPP

#include "filesystem/streams/scratch_directory.hpp"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

// Installation roots in a scratch directory: root/resources/C/L/S.xml holds catalog C:S of
// locale L, root/derived/share/resources/C/catalog_map.xml the map of C.
struct catalog_tree : scratch_directory {
    using scratch_directory::scratch_directory;
    void put(std::string const& name, std::string const& content) const {
        std::filesystem::create_directories(std::filesystem::path(bytes(name)).parent_path());
        write(name, content);
    }
    // A catalog of the entries or, with map set, a catalog map of their keys.
    void put_catalog(std::string const& name,
                     std::vector<std::pair<std::string, std::string>> const& entries,
                     bool map = false) const {
        std::string xml = map ? "<MessageCatalogMap>\n" : "<rsccat><message>\n";
        for (auto const& entry : entries) {
            xml += "<entry key=\"" + entry.first + "\">" + entry.second + "</entry>\n";
        }
        put(name, xml + (map ? "</MessageCatalogMap>\n" : "</message></rsccat>\n"));
    }
};

#endif
