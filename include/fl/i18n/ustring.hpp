#ifndef FL_I18N_USTRING_HPP
#define FL_I18N_USTRING_HPP

#include <string>

namespace fl {
namespace i18n {

// UTF-16 code units: the library's text type everywhere.
using ustring = std::basic_string<char16_t>;

}  // namespace i18n
}  // namespace fl

#endif
