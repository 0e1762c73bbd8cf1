#include <fl/i18n/facet/ctype_facet.hpp>

#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/facet/class_mask.hpp"
#include "i18n/facet/std_char16_support.hpp"
#include "i18n/facet/widen_table.hpp"
#include "i18n/lcctype/posix_class_scan.hpp"
#include "i18n/lcctype/posix_class_test.hpp"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace fl {
namespace i18n {
namespace facet {

namespace {

using detail::to_posix_mask;

// Maps a range in place. A pair is mapped as one code point and stored back as a pair, which
// assumes that the mapping of a supplementary character is supplementary too.
template <class Map>
char16_t const* map_case(char16_t* lo, char16_t const* hi, Map map) {
    for (char16_t* p = lo; p < hi; ++p) {
        if (U16_IS_LEAD(p[0]) && p + 1 < hi && U16_IS_TRAIL(p[1])) {
            UChar32 const r = map(U16_GET_SUPPLEMENTARY(p[0], p[1]));
            p[0] = static_cast<char16_t>((r >> 10) + 0xD7C0);
            p[1] = static_cast<char16_t>((r & 0x3FF) | 0xDC00);
            ++p;
        } else {
            p[0] = static_cast<char16_t>(map(p[0]));
        }
    }
    return hi;
}

}  // namespace

ctype_facet<char16_t>::ctype_facet(OvLocale const& locale)
    : std::ctype_byname<char16_t>("", 0),
      encoding_name_(locale.getEncoding()),
      widen_table_(detail::make_widen_table(encoding_name_)) {}

ctype_facet<char16_t>::~ctype_facet() = default;

bool ctype_facet<char16_t>::do_is(mask m, char16_t c) const {
    return lcctype::detail::in_posix_classes(to_posix_mask(m), c);
}

char16_t const* ctype_facet<char16_t>::do_is(char16_t const* lo, char16_t const* hi,
                                             mask* vec) const {
    for (char16_t const* p = lo; p < hi; ++p, ++vec) {
        if (U16_IS_LEAD(p[0]) && p + 1 < hi && U16_IS_TRAIL(p[1])) {
            mask const m = detail::range_mask_of(U16_GET_SUPPLEMENTARY(p[0], p[1]));
            vec[0] = m;
            vec[1] = m;
            ++p;
            ++vec;
        } else {
            *vec = detail::range_mask_of(p[0]);
        }
    }
    return hi;
}

// The scans answer as lcctype::scan does, except that the walk is bounded to [lo, hi): scan may
// read past a high surrogate at the end and return a position beyond hi, which a standard facet
// must never do. This is a deliberate departure from scan, made for memory safety.
char16_t const* ctype_facet<char16_t>::do_scan_is(mask m, char16_t const* lo,
                                                  char16_t const* hi) const {
    lcctype::detail::posix_class_set const classes(to_posix_mask(m));
    return lcctype::detail::scan_walk<true>(lo, hi,
                                            [&classes](char32_t c) { return classes.contains(c); });
}

char16_t const* ctype_facet<char16_t>::do_scan_not(mask m, char16_t const* lo,
                                                   char16_t const* hi) const {
    return lcctype::detail::scan_posix_classes<false, true>(to_posix_mask(m), lo, hi);
}

char16_t ctype_facet<char16_t>::do_toupper(char16_t c) const {
    return static_cast<char16_t>(u_toupper(c));
}

char16_t const* ctype_facet<char16_t>::do_toupper(char16_t* lo, char16_t const* hi) const {
    return map_case(lo, hi, &u_toupper);
}

char16_t ctype_facet<char16_t>::do_tolower(char16_t c) const {
    return static_cast<char16_t>(u_tolower(c));
}

char16_t const* ctype_facet<char16_t>::do_tolower(char16_t* lo, char16_t const* hi) const {
    return map_case(lo, hi, &u_tolower);
}

}  // namespace facet
}  // namespace i18n
}  // namespace fl
