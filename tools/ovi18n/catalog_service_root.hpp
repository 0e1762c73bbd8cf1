#ifndef OVI18N_TOOL_CATALOG_SERVICE_ROOT_HPP
#define OVI18N_TOOL_CATALOG_SERVICE_ROOT_HPP

#include <string>

namespace ovi18n_tool {

// Starts the library and its catalog service on the installation root `given` (by default the
// tool's own) and returns the root's resources directory, or, after a one-line complaint on
// standard error, an empty text.
std::string start_catalog_service(std::string const& given);

}  // namespace ovi18n_tool

#endif
