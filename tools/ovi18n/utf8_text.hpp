#ifndef OVI18N_TOOL_UTF8_TEXT_HPP
#define OVI18N_TOOL_UTF8_TEXT_HPP

#include <fl/i18n/ustring.hpp>

#include <string>

namespace ovi18n_tool {

// The tool prints UTF-8 whatever the process locale, as the library's own texts are UTF-16.
// An unpaired surrogate becomes U+FFFD.
std::string to_utf8(fl::i18n::ustring const& text);
// Ill-formed bytes become U+FFFD.
fl::i18n::ustring from_utf8(std::string const& text);

}  // namespace ovi18n_tool

#endif
