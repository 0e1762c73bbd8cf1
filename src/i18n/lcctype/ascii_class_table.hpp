#ifndef FL_I18N_LCCTYPE_ASCII_CLASS_TABLE_HPP
#define FL_I18N_LCCTYPE_ASCII_CLASS_TABLE_HPP

#include <fl/i18n/lcctype/posix_class.hpp>

#include <array>
#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// The classes of each ASCII code point, in posix_class bits.
using ascii_class_table = std::array<std::uint16_t, 128>;

constexpr bool is_ascii_punct(unsigned int c) {
    return (c >= 0x21 && c <= 0x2F) || (c >= 0x3A && c <= 0x40) || (c >= 0x5B && c <= 0x60) ||
           (c >= 0x7B && c <= 0x7E);
}

constexpr std::uint16_t ascii_classes_of(unsigned int c) {
    using namespace posix_class;
    if (c == 0x20) {
        return space | print;
    }
    if (c >= 0x09 && c <= 0x0D) {
        return cntrl | space;
    }
    if (c < 0x20 || c == 0x7F) {
        return cntrl;
    }
    if (c >= '0' && c <= '9') {
        return digit | xdigit | print;
    }
    if (c >= 'a' && c <= 'z') {
        return alpha | lower | print | (c <= 'f' ? xdigit : 0);
    }
    if (c >= 'A' && c <= 'Z') {
        return alpha | upper | print | (c <= 'F' ? xdigit : 0);
    }
    return is_ascii_punct(c) ? (punct | print) : 0;
}

constexpr ascii_class_table make_ascii_class_table() {
    ascii_class_table table{};
    for (unsigned int c = 0; c < table.size(); ++c) {
        table[c] = ascii_classes_of(c);
    }
    return table;
}

constexpr ascii_class_table ascii_classes = make_ascii_class_table();

static_assert(ascii_classes['a'] == 0x161 && ascii_classes['G'] == 0x181 &&
                  ascii_classes['5'] == 0x122 && ascii_classes['~'] == 0x108 &&
                  ascii_classes['\t'] == 0x014 && ascii_classes[0x7F] == 0x004,
              "ASCII class table");

// Any bit outside 0x7F, however high, means not ASCII.
inline bool ascii_has(char32_t c, unsigned int classes) {
    return (c & ~char32_t(0x7F)) == 0 && (ascii_classes[c] & classes) != 0;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
