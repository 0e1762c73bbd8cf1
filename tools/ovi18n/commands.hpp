#ifndef OVI18N_TOOL_COMMANDS_HPP
#define OVI18N_TOOL_COMMANDS_HPP

#include <ostream>

namespace ovi18n_tool {

int run_locale(std::ostream& out, bool json);

}  // namespace ovi18n_tool

#endif
