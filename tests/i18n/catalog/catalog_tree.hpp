#ifndef OVI18N_TESTS_I18N_CATALOG_CATALOG_TREE_HPP
#define OVI18N_TESTS_I18N_CATALOG_CATALOG_TREE_HPP

#include "filesystem/streams/scratch_directory.hpp"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

// Installation roots under a scratch directory: catalogs in root/resources/C/L/S.xml, catalog
// maps in root/derived/share/resources/C/catalog_map.xml.
class catalog_tree : public scratch_directory {
public:
    using entries = std::vector<std::pair<std::string, std::string>>;

    explicit catalog_tree(std::string const& name) : scratch_directory(name) {}

    // Makes the directories and writes the file (name relative to the scratch directory).
    void put(std::string const& name, std::string const& content) const {
        std::filesystem::create_directories(std::filesystem::path(bytes(name)).parent_path());
        write(name, content);
    }
    void put_catalog(std::string const& name, entries const& texts) const {
        std::string xml = "<rsccat><message>\n";
        for (auto const& entry : texts) {
            xml += "<entry key=\"" + entry.first + "\">" + entry.second + "</entry>\n";
        }
        put(name, xml + "</message></rsccat>\n");
    }
    void put_map(std::string const& name, std::vector<std::string> const& keys) const {
        std::string xml = "<MessageCatalogMap>\n";
        for (std::string const& key : keys) {
            xml += "<entry key=\"" + key + "\"/>\n";
        }
        put(name, xml + "</MessageCatalogMap>\n");
    }
};

#endif
