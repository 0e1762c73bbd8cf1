#include <fl/i18n/lcctype/scan.hpp>

#include "i18n/lcctype/posix_class_test.hpp"
#include "i18n/lcctype/scan_walk.hpp"

#include <boost/bind/bind.hpp>

namespace fl {
namespace i18n {
namespace lcctype {

namespace {

detail::char_predicate inside(unsigned int mask) {
    return boost::bind(&detail::in_posix_classes, mask, boost::placeholders::_1);
}

detail::char_predicate outside(unsigned int mask) {
    return boost::bind(&detail::not_in_posix_classes, mask, boost::placeholders::_1);
}

}  // namespace

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_posix const&) {
    return detail::scan_walk(first, last, inside(mask));
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_posix const&) {
    return detail::scan_walk(first, last, inside(mask));
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_posix const&) {
    return detail::scan_walk(first, last, inside(mask));
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_posix const&) {
    return detail::scan_walk(first, last, inside(mask));
}

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_not_posix const&) {
    return detail::scan_walk(first, last, outside(mask));
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_not_posix const&) {
    return detail::scan_walk(first, last, outside(mask));
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_not_posix const&) {
    return detail::scan_walk(first, last, outside(mask));
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_not_posix const&) {
    return detail::scan_walk(first, last, outside(mask));
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
