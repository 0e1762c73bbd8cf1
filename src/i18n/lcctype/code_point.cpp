#include <fl/i18n/lcctype/code_point.hpp>

#include <unicode/utf16.h>

namespace fl {
namespace i18n {
namespace lcctype {

bool is_valid_utf32(char32_t c) {
    return c <= 0xD7FF || (c >= 0xE000 && c <= 0x10FFFF);
}

bool is_valid_uchar(char32_t c) {
    return c <= 0xFFFF;
}

char32_t make_utf32_from_uchar(char16_t high, char16_t low) {
    if (!U16_IS_LEAD(high) || !U16_IS_TRAIL(low)) {
        return 0xFFFD;
    }
    return static_cast<char32_t>(U16_GET_SUPPLEMENTARY(high, low));
}

int make_uchar_from_utf32(char32_t c, char16_t* out) {
    if (c <= 0xFFFF) {
        out[0] = static_cast<char16_t>(c);
        return 1;
    }
    // Unsigned arithmetic keeps the lead unit modulo 0x10000 for values beyond the code space.
    out[0] = static_cast<char16_t>((c >> 10) - 0x2840);
    out[1] = static_cast<char16_t>((c & 0x3FF) | 0xDC00);
    return 2;
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
