#ifndef OVI18N_TOOL_USAGE_ERROR_HPP
#define OVI18N_TOOL_USAGE_ERROR_HPP

#include <string>

namespace ovi18n_tool {

// Says what was wrong with the command line on one line of standard error; returns exit code 2.
int usage_error(std::string const& what);

}  // namespace ovi18n_tool

#endif
