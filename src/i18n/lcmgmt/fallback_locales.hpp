#ifndef FL_I18N_LCMGMT_FALLBACK_LOCALES_INTERNAL_HPP
#define FL_I18N_LCMGMT_FALLBACK_LOCALES_INTERNAL_HPP

#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

// The fallback list of a messages locale name with a chosen last element.
std::vector<ustring> fallback_locale_names(ustring const& name, ustring const& last);
std::vector<std::string> fallback_locale_names(std::string const& name, std::string const& last);
std::vector<std::string> fallback_locale_names(OvLocale const& locale, std::string const& last);

// Byte for byte: locale names are ASCII.
ustring widen_ascii(std::string const& text);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
