#include "json_string.hpp"

#include "utf8_sequence.hpp"

#include <cstddef>
#include <cstdio>

namespace ovi18n_tool {

std::string json_quote(std::string const& bytes) {
    std::string out = "\"";
    char buffer[8];
    for (std::size_t i = 0; i < bytes.size();) {
        auto const c = static_cast<unsigned char>(bytes[i]);
        if (c >= 0x80) {
            std::size_t const length = utf8_sequence_length(bytes, i);
            if (length == 0) {
                std::snprintf(buffer, sizeof buffer, "\\\\x%02X", c);
                out += buffer;
                ++i;
            } else {
                out.append(bytes, i, length);
                i += length;
            }
            continue;
        }
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '\t') {
            out += "\\t";
        } else if (c < 0x20) {
            std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
            out += buffer;
        } else {
            out += static_cast<char>(c);
        }
        ++i;
    }
    return out + "\"";
}

}  // namespace ovi18n_tool
