#include "terminal_text.hpp"

#include "utf8_sequence.hpp"

#include <cstdio>

namespace ovi18n_tool {

std::string terminal_text(std::string const& bytes) {
    std::string out;
    char buffer[8];
    for (std::size_t i = 0; i < bytes.size();) {
        auto const c = static_cast<unsigned char>(bytes[i]);
        std::size_t const length = c >= 0x80 ? utf8_sequence_length(bytes, i) : 1;
        bool const c1_control =
            c == 0xC2 && length == 2 && static_cast<unsigned char>(bytes[i + 1]) < 0xA0;
        if (length == 0 || c < 0x20 || c == 0x7F) {
            std::snprintf(buffer, sizeof buffer, "\\x%02X", c);
            out += buffer;
            ++i;
        } else if (c1_control) {
            std::snprintf(buffer, sizeof buffer, "\\u%04X",
                          static_cast<unsigned char>(bytes[i + 1]));
            out += buffer;
            i += 2;
        } else if (c == '\\') {
            out += "\\\\";
            ++i;
        } else {
            out.append(bytes, i, length);
            i += length;
        }
    }
    return out;
}

}  // namespace ovi18n_tool
