#ifndef OVI18N_TOOL_JSON_STRING_HPP
#define OVI18N_TOOL_JSON_STRING_HPP

#include <string>

namespace ovi18n_tool {

// A JSON string literal for any bytes. Valid UTF-8 passes through; a byte that isn't part of a
// valid sequence is shown as the four characters "\xHH", so that what the environment really
// held stays visible and the document stays valid.
std::string json_quote(std::string const& bytes);

}  // namespace ovi18n_tool

#endif
