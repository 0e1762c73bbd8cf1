#ifndef FL_I18N_LCMGMT_LOCALE_ENV_APPLY_HPP
#define FL_I18N_LCMGMT_LOCALE_ENV_APPLY_HPP

#include "i18n/lcmgmt/locale_env_snapshot.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

// Replaces the fourteen locale variables by the decided ones; LC_ALL ends up unset.
void install_locale_env(locale_env_snapshot const& setting);

// install_locale_env, then the C library's locale from the new environment.
void apply_locale_setting(locale_env_snapshot const& setting);

// Brings LC_MESSAGES of the environment and the C library in line with l10n_control.
void switch_lc_messages(locale_env_snapshot& setting);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
