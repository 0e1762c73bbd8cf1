#ifndef RESOURCE_CORE_CATALOG_NAME_HPP
#define RESOURCE_CORE_CATALOG_NAME_HPP

#include <resource_core/export.hpp>

#include <string>

namespace resource_core {

// Turns the catalog part of a typed message id into the catalog's internal name. Product names
// map to their own catalogs; anything else is already internal and comes back unchanged.
RESOURCE_CORE_API std::string makeInternalCatalogName(std::string const& name);

}  // namespace resource_core

#endif
