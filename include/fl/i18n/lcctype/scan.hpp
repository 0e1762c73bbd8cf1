#ifndef FL_I18N_LCCTYPE_SCAN_HPP
#define FL_I18N_LCCTYPE_SCAN_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace i18n {
namespace lcctype {

// Finds the first character of [first, last) that falls in (is_posix) or out of (is_not_posix)
// the classes of mask (posix_class bits), or returns last. A null pointer gives last.
//
// A high surrogate is joined only when the unit two places on is a low surrogate, and then with
// the unit between; the walk therefore reads up to two units past its position, and must be
// given text that is readable there. Only equality with last ends the walk, so a pair joined
// across last steps over it: the walk then goes on beyond last and may return a position past
// it. The char16_t ctype facet does not use this walk as is: it bounds it to its range.
FL_I18N_API char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_posix const&);
FL_I18N_API char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                                 is_posix const&);
FL_I18N_API ustring::iterator scan(unsigned int mask, ustring::iterator first,
                                   ustring::iterator last, is_posix const&);
FL_I18N_API ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                                         ustring::const_iterator last, is_posix const&);

FL_I18N_API char16_t* scan(unsigned int mask, char16_t* first, char16_t* last, is_not_posix const&);
FL_I18N_API char16_t const* scan(unsigned int mask, char16_t const* first, char16_t const* last,
                                 is_not_posix const&);
FL_I18N_API ustring::iterator scan(unsigned int mask, ustring::iterator first,
                                   ustring::iterator last, is_not_posix const&);
FL_I18N_API ustring::const_iterator scan(unsigned int mask, ustring::const_iterator first,
                                         ustring::const_iterator last, is_not_posix const&);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
