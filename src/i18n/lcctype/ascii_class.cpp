#include <fl/i18n/lcctype/ascii_class.hpp>

#include "i18n/lcctype/ascii_class_table.hpp"

namespace fl {
namespace i18n {
namespace lcctype {

using detail::ascii_has;

bool isascii_character(char32_t c) {
    return c < 0x80;
}

bool isspace_ascii(char32_t c) {
    return ascii_has(c, posix_class::space);
}

bool isalpha_ascii(char32_t c) {
    return ascii_has(c, posix_class::alpha);
}

bool isdigit_ascii(char32_t c) {
    return ascii_has(c, posix_class::digit);
}

bool isalnum_ascii(char32_t c) {
    return ascii_has(c, posix_class::alnum);
}

bool islower_ascii(char32_t c) {
    return ascii_has(c, posix_class::lower);
}

bool isupper_ascii(char32_t c) {
    return ascii_has(c, posix_class::upper);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
