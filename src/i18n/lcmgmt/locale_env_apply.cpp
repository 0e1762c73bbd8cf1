#include "i18n/lcmgmt/locale_env_apply.hpp"

#include "platform/c_library_locale.hpp"
#include "platform/process_environment.hpp"

#include <clocale>

namespace fl {
namespace i18n {
namespace lcmgmt {

void install_locale_env(locale_env_snapshot const& setting) {
    for (char const* name : locale_env_var_names) {
        detail::platform::unset_environment_value(name);
    }
    for (int i = 0; i < locale_env_var_count; ++i) {
        if (!setting.new_env[i].empty()) {
            detail::platform::set_environment_value(locale_env_var_names[i],
                                                    setting.new_env[i].c_str(), 1);
        }
    }
}

void apply_locale_setting(locale_env_snapshot const& setting) {
    install_locale_env(setting);
    detail::platform::follow_environment_locale(LC_ALL);
}

void switch_lc_messages(locale_env_snapshot& setting) {
    detail::platform::unset_environment_value("LC_MESSAGES");
    std::string& messages = setting.new_env[lc_messages_index];
    if (setting.l10n_control == l10n_off) {
        // With LANG=C messages are English already; no variable is needed for that.
        if (setting.new_env[lang_var] == "C") {
            messages.clear();
        } else {
            messages = "C";
            detail::platform::set_environment_value("LC_MESSAGES", "C", 1);
        }
    } else if (!setting.category_names[lc_messages_index].empty()) {
        messages = setting.category_names[lc_messages_index];
        detail::platform::set_environment_value("LC_MESSAGES", messages.c_str(), 1);
    }
    detail::platform::follow_environment_locale(LC_MESSAGES);
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
