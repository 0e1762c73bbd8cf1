#ifndef FL_I18N_LCCTYPE_POSIX_CLASS_TEST_HPP
#define FL_I18N_LCCTYPE_POSIX_CLASS_TEST_HPP

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// True when c belongs to any class of mask (posix_class bits). Shared by scan and the char16_t
// ctype facet, so both agree on what a class holds.
bool in_posix_classes(unsigned int mask, char32_t c);
bool not_in_posix_classes(unsigned int mask, char32_t c);

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
