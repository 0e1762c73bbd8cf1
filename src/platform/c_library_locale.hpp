#ifndef FL_PLATFORM_C_LIBRARY_LOCALE_HPP
#define FL_PLATFORM_C_LIBRARY_LOCALE_HPP

#include <string>

namespace fl {
namespace i18n {
namespace detail {
namespace platform {

// The C library's locale calls of the locale manager. A null answer of the C library reads as
// empty.

// setlocale(category, nullptr): the locale the category has now.
std::string current_c_locale(int category);
// setlocale(category, ""): the category follows the environment where the C library can; on
// failure it stays as it was.
void follow_environment_locale(int category);
// nl_langinfo(CODESET) of the current LC_CTYPE.
std::string current_codeset();

}  // namespace platform
}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
