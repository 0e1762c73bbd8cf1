#include <fl/i18n/lcctype/scan.hpp>

#include "i18n/lcctype/posix_class_test.hpp"
#include "i18n/lcctype/scan_walk.hpp"

namespace fl {
namespace i18n {
namespace lcctype {

namespace {

template <class Iterator>
Iterator scan_inside(unsigned int mask, Iterator first, Iterator last) {
    detail::posix_class_set const classes(mask);
    return detail::scan_walk(first, last, [&classes](char32_t c) { return classes.contains(c); });
}

template <class Iterator>
Iterator scan_outside(unsigned int mask, Iterator first, Iterator last) {
    detail::posix_class_set const classes(mask);
    return detail::scan_walk(first, last, [&classes](char32_t c) { return !classes.contains(c); });
}

}  // namespace

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_posix const&) {
    return scan_inside(mask, first, last);
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_posix const&) {
    return scan_inside(mask, first, last);
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_posix const&) {
    return scan_inside(mask, first, last);
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_posix const&) {
    return scan_inside(mask, first, last);
}

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_not_posix const&) {
    return scan_outside(mask, first, last);
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_not_posix const&) {
    return scan_outside(mask, first, last);
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_not_posix const&) {
    return scan_outside(mask, first, last);
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_not_posix const&) {
    return scan_outside(mask, first, last);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
