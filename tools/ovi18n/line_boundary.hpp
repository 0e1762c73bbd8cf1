#ifndef OVI18N_TOOL_LINE_BOUNDARY_HPP
#define OVI18N_TOOL_LINE_BOUNDARY_HPP

#include <string>

namespace ovi18n_tool {

// Whether input in this encoding may be cut after any line feed byte and each part decoded by a
// fresh converter with the same result as decoding it whole: the encoding keeps no state between
// characters, and 0x0A is never taken into a sequence that began before it. Asked of ICU's own
// tables, not of a list of names.
bool cuts_after_line_feed(std::string const& encoding);

}  // namespace ovi18n_tool

#endif
