#ifndef OVI18N_TOOL_ENVIRONMENT_SNAPSHOT_HPP
#define OVI18N_TOOL_ENVIRONMENT_SNAPSHOT_HPP

#include "report.hpp"

#include <string>

namespace ovi18n_tool {

// Every variable that decides the locale, as the process has it now: the C library's, then the
// library's own OVLOCALE_ controls. Unset variables are null, apart from set-but-empty ones.
report::entry snapshot_locale_environment(std::string key);

}  // namespace ovi18n_tool

#endif
