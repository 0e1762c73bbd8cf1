#include "i18n/facet/std_char16_support.hpp"

#include "i18n/facet/class_mask.hpp"
#include "i18n/lcctype/ascii_class_table.hpp"

// The plain std::ctype<char16_t> is the "C" locale on ASCII: nothing beyond 0x7F has a class
// or a case, and it narrows to the default. The library's own facet overrides all of this.

namespace {

using std_mask = std::ctype_base::mask;

std_mask ascii_mask_of(char16_t c) {
    return c < 0x80
               ? fl::i18n::facet::detail::to_std_mask(fl::i18n::lcctype::detail::ascii_classes[c])
               : std_mask(0);
}

char16_t ascii_upper(char16_t c) {
    return (c >= u'a' && c <= u'z') ? char16_t(c - u'a' + u'A') : c;
}

char16_t ascii_lower(char16_t c) {
    return (c >= u'A' && c <= u'Z') ? char16_t(c - u'A' + u'a') : c;
}

}  // namespace

namespace std {

template <>
ctype<char16_t>::~ctype() {}

template <>
bool ctype<char16_t>::do_is(mask m, char16_t c) const {
    return (ascii_mask_of(c) & m) != 0;
}

template <>
char16_t const* ctype<char16_t>::do_is(char16_t const* lo, char16_t const* hi, mask* vec) const {
    for (; lo < hi; ++lo, ++vec) {
        *vec = ascii_mask_of(*lo);
    }
    return hi;
}

template <>
char16_t const* ctype<char16_t>::do_scan_is(mask m, char16_t const* lo, char16_t const* hi) const {
    while (lo < hi && !do_is(m, *lo)) {
        ++lo;
    }
    return lo;
}

template <>
char16_t const* ctype<char16_t>::do_scan_not(mask m, char16_t const* lo, char16_t const* hi) const {
    while (lo < hi && do_is(m, *lo)) {
        ++lo;
    }
    return lo;
}

template <>
char16_t ctype<char16_t>::do_toupper(char16_t c) const {
    return ascii_upper(c);
}

template <>
char16_t const* ctype<char16_t>::do_toupper(char16_t* lo, char16_t const* hi) const {
    for (; lo < hi; ++lo) {
        *lo = ascii_upper(*lo);
    }
    return hi;
}

template <>
char16_t ctype<char16_t>::do_tolower(char16_t c) const {
    return ascii_lower(c);
}

template <>
char16_t const* ctype<char16_t>::do_tolower(char16_t* lo, char16_t const* hi) const {
    for (; lo < hi; ++lo) {
        *lo = ascii_lower(*lo);
    }
    return hi;
}

template <>
char16_t ctype<char16_t>::do_widen(char c) const {
    return static_cast<char16_t>(static_cast<unsigned char>(c));
}

template <>
char const* ctype<char16_t>::do_widen(char const* lo, char const* hi, char16_t* to) const {
    for (; lo < hi; ++lo, ++to) {
        *to = do_widen(*lo);
    }
    return hi;
}

template <>
char ctype<char16_t>::do_narrow(char16_t c, char dfault) const {
    return c < 0x80 ? static_cast<char>(c) : dfault;
}

template <>
char16_t const* ctype<char16_t>::do_narrow(char16_t const* lo, char16_t const* hi, char dfault,
                                           char* to) const {
    for (; lo < hi; ++lo, ++to) {
        *to = do_narrow(*lo, dfault);
    }
    return hi;
}

template <>
ctype_byname<char16_t>::ctype_byname(char const*, size_t refs) : ctype<char16_t>(refs) {}

}  // namespace std
