#ifndef OVI18N_TOOL_COMMANDS_HPP
#define OVI18N_TOOL_COMMANDS_HPP

#include <ostream>
#include <string>
#include <vector>

namespace ovi18n_tool {

int run_locale(std::ostream& out, bool json);
// The arguments after "ls": PATH [PATTERN] [--json].
int run_ls(std::vector<std::string> const& args);

}  // namespace ovi18n_tool

#endif
