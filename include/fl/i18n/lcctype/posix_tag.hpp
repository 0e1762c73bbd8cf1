#ifndef FL_I18N_LCCTYPE_POSIX_TAG_HPP
#define FL_I18N_LCCTYPE_POSIX_TAG_HPP

namespace fl {
namespace i18n {

// Select the sense of lcctype::scan: stop at the first character inside the classes, or at the
// first one outside them.
struct is_posix {};
struct is_not_posix {};

}  // namespace i18n
}  // namespace fl

#endif
