#include "utf8_sequence.hpp"

namespace ovi18n_tool {

std::size_t utf8_sequence_length(std::string const& s, std::size_t i) {
    auto const byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    unsigned char const lead = byte(i);
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;
        high = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    } else {
        return 0;
    }
    if (i + length > s.size()) {
        return 0;
    }
    if (byte(i + 1) < low || byte(i + 1) > high) {
        return 0;
    }
    for (std::size_t k = 2; k < length; ++k) {
        if (byte(i + k) < 0x80 || byte(i + k) > 0xBF) {
            return 0;
        }
    }
    return length;
}

}  // namespace ovi18n_tool
