#ifndef FL_I18N_LCMGMT_MANAGER_HPP
#define FL_I18N_LCMGMT_MANAGER_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

namespace fl {
namespace i18n {

// The library's one entry point: decides the process locale from the environment. Runs once per
// process; later calls return at once. Everything works before it, with the default setting.
FL_I18N_API void initialize();

// The locale part of initialize(); a second call changes nothing.
FL_I18N_API void initLcMgmtSystem();

// From now on change_global_locale() has no effect.
FL_I18N_API void lock_global_locale_setting();

// Does not install the locale: it only decides whether messages drop to English, and then locks
// the setting.
FL_I18N_API void change_global_locale(OvLocale const& locale);

// Switches messages to English for good; a second call does nothing.
FL_I18N_API void disable_l10n_resource();

FL_I18N_API bool get_l10n_resource_status();

}  // namespace i18n
}  // namespace fl

#endif
