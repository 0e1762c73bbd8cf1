#include <resource_core/catalog_name.hpp>

namespace resource_core {

std::string makeInternalCatalogName(std::string const& name) {
    return name;
}

}  // namespace resource_core
