#ifndef OVI18N_TOOL_CHECK_HTML_HPP
#define OVI18N_TOOL_CHECK_HTML_HPP

#include "catalog_check.hpp"

#include <ostream>
#include <string>

namespace ovi18n_tool {

// One self-contained page: coverage per catalog and locale as bars, then the findings. Inline
// CSS only, so it can be mailed or archived as a single file.
void write_check_html(std::ostream& out, std::string const& root, std::string const& reference,
                      check_result const& result);

}  // namespace ovi18n_tool

#endif
