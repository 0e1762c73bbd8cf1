#include "catalog_service_root.hpp"

#include "catalog_tree.hpp"

#include <fl/filesystem/path_resolution.hpp>
#include <fl/i18n.hpp>

namespace ovi18n_tool {

std::string start_catalog_service(std::string const& given) {
    fl::i18n::initialize();
    std::string const resources = resources_directory(installation_root(given));
    if (!resources.empty()) {
        // A root given on the command line is bytes of the process's encoding, as paths are.
        fl::i18n::MessageCatalog::MessageCatalogInit(
            given.empty() ? fl::filesystem::get_install_path() : fl::i18n::to_ustring(given));
    }
    return resources;
}

}  // namespace ovi18n_tool
