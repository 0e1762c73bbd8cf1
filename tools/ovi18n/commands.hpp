#ifndef OVI18N_TOOL_COMMANDS_HPP
#define OVI18N_TOOL_COMMANDS_HPP

#include <ostream>
#include <string>
#include <vector>

namespace ovi18n_tool {

int run_locale(std::ostream& out, bool json);
// The arguments after the command's name; usage errors return 2, library errors propagate.
int run_tz(std::vector<std::string> const& args, std::ostream& out);
int run_encodings(std::vector<std::string> const& args, std::ostream& out);
// Writes the converted text to standard output.
int run_convert(std::vector<std::string> const& args);
// The arguments after "ls": PATH [PATTERN] [--json].
int run_ls(std::vector<std::string> const& args);
// [--root DIR] [--html FILE] [--json]: lints a resources tree; 1 when it has errors.
int run_check(std::vector<std::string> const& args);
// [--root DIR] [--json]: the catalogs of each locale with their entry counts.
int run_catalogs(std::vector<std::string> const& args);
// ID [ARG...] [--locale NAME] [--root DIR] [--json]: a formatted message and where it came from.
int run_message(std::vector<std::string> const& args);
// [PREFIX] [--root DIR] [--json]: what may follow a partly typed message id.
int run_complete(std::vector<std::string> const& args);

}  // namespace ovi18n_tool

#endif
