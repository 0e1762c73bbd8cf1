#ifndef FL_I18N_CODECVT_ENCODING_NAME_HPP
#define FL_I18N_CODECVT_ENCODING_NAME_HPP

#include <string>

namespace fl {
namespace i18n {
namespace detail {

// What a converter constructor opens: the name given, or the global locale's encoding when
// the name is empty.
std::string encoding_or_global(std::string const& encoding);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
