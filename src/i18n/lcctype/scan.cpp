#include <fl/i18n/lcctype/scan.hpp>

#include "i18n/lcctype/posix_class_scan.hpp"

namespace fl {
namespace i18n {
namespace lcctype {

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_posix const&) {
    return detail::scan_posix_classes<true>(mask, first, last);
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_posix const&) {
    return detail::scan_posix_classes<true>(mask, first, last);
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_posix const&) {
    return detail::scan_posix_classes<true>(mask, first, last);
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_posix const&) {
    return detail::scan_posix_classes<true>(mask, first, last);
}

char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_not_posix const&) {
    return detail::scan_posix_classes<false>(mask, first, last);
}

char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                     is_not_posix const&) {
    return detail::scan_posix_classes<false>(mask, first, last);
}

ustring::iterator scan(unsigned int mask, ustring::iterator first, ustring::iterator last,
                       is_not_posix const&) {
    return detail::scan_posix_classes<false>(mask, first, last);
}

ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                             ustring::const_iterator last, is_not_posix const&) {
    return detail::scan_posix_classes<false>(mask, first, last);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
