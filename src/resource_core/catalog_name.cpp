#include <resource_core/catalog_name.hpp>

namespace resource_core {

std::string makeInternalCatalogName(std::string const& name) {
    // The product's oldest messages predate the component:catalog naming and live in a catalog
    // of their own, which users still address by the bare product name.
    if (name == "VELMOR") {
        return "VELMOR:legacy_two_part";
    }
    return name;
}

}  // namespace resource_core
