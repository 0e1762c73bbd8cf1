#ifndef FL_I18N_LCCTYPE_TRIM_HPP
#define FL_I18N_LCCTYPE_TRIM_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace i18n {

// Take away the units of chars from the ends of s. chars is a set of UTF-16 units, not of
// characters: a supplementary character in it stands for its two halves, each on its own.
// An empty chars removes nothing; a string made only of chars becomes empty.
FL_I18N_API ustring& trim(ustring& s, ustring const& chars);
FL_I18N_API ustring& trim_left(ustring& s, ustring const& chars);
FL_I18N_API ustring& trim_right(ustring& s, ustring const& chars);
FL_I18N_API ustring trim_copy(ustring const& s, ustring const& chars);
FL_I18N_API ustring trim_copy_left(ustring const& s, ustring const& chars);
FL_I18N_API ustring trim_copy_right(ustring const& s, ustring const& chars);

}  // namespace i18n
}  // namespace fl

#endif
