#ifndef FL_I18N_LCMGMT_ENCODING_STANDARD_NAME_HPP
#define FL_I18N_LCMGMT_ENCODING_STANDARD_NAME_HPP

#include <string>

namespace fl {
namespace i18n {
namespace lcmgmt {

// ICU's preferred public name of an encoding (MIME, else IANA, else WINDOWS, else ICU's own);
// empty when ICU can't open it.
std::string encoding_standard_name(std::string const& name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
