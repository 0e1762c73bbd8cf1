#ifndef OVI18N_TOOL_TERMINAL_TEXT_HPP
#define OVI18N_TOOL_TERMINAL_TEXT_HPP

#include <string>

namespace ovi18n_tool {

// Bytes made safe to show on a terminal. Values come from the environment, and an escape
// sequence in one must not reach the terminal: control characters (C0, DEL and C1) and bytes
// that are not part of valid UTF-8 are shown as "\xHH" (C1 as "\u00HH"), a backslash as "\\";
// other valid UTF-8 passes through.
std::string terminal_text(std::string const& bytes);

}  // namespace ovi18n_tool

#endif
