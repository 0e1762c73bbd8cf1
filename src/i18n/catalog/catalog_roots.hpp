#ifndef FL_I18N_CATALOG_CATALOG_ROOTS_HPP
#define FL_I18N_CATALOG_CATALOG_ROOTS_HPP

#include <fl/filesystem/basic_path.hpp>

#include <vector>

namespace fl {
namespace i18n {

// The resource roots the service searches (each ends in "resources"), main roots first and
// additional locations after them, as a copy taken consistently with any change in progress.
// Throws MessageCatalog::MessageCatalogNotInitialized while there are none.
std::vector<fl::filesystem::upath> catalog_resource_roots();

}  // namespace i18n
}  // namespace fl

#endif
