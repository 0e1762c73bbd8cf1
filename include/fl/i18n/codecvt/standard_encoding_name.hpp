#ifndef FL_I18N_CODECVT_STANDARD_ENCODING_NAME_HPP
#define FL_I18N_CODECVT_STANDARD_ENCODING_NAME_HPP

#include <fl/i18n/export.hpp>

#include <string>

namespace fl {
namespace i18n {

// The name the rest of the world knows an encoding by: the locale database's name when it knows
// the encoding, otherwise ICU's MIME, IANA or WINDOWS name. Empty when neither knows it; never
// throws.
FL_I18N_API std::string get_standard_encoding_name(std::string const& name);

}  // namespace i18n
}  // namespace fl

#endif
