#ifndef FL_I18N_LCMGMT_FALLBACK_LOCALES_HPP
#define FL_I18N_LCMGMT_FALLBACK_LOCALES_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/ustring.hpp>

#include <vector>

namespace fl {
namespace i18n {

// The names a resource lookup tries for a locale's messages, most specific first: the name,
// the name without its last "_" part, then "en" (not repeated): de_DE, de, en.
FL_I18N_API std::vector<ustring> get_fallback_locales(OvLocale const& locale);

// The same, ending in the empty name, which stands for the untranslated resource.
FL_I18N_API std::vector<ustring> get_fallback_locales_with_empty_default(OvLocale const& locale);

}  // namespace i18n
}  // namespace fl

#endif
