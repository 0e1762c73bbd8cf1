#ifndef OVI18N_TOOL_UTF8_SEQUENCE_HPP
#define OVI18N_TOOL_UTF8_SEQUENCE_HPP

#include <cstddef>
#include <string>

namespace ovi18n_tool {

// Length of the well-formed UTF-8 sequence at s[i], or 0 if there is none (overlong forms,
// surrogates and values above U+10FFFF included).
std::size_t utf8_sequence_length(std::string const& s, std::size_t i);

}  // namespace ovi18n_tool

#endif
