#ifndef FL_I18N_LCMGMT_SYSTEM_SETTING_READER_HPP
#define FL_I18N_LCMGMT_SYSTEM_SETTING_READER_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include "i18n/lcmgmt/locale_env_snapshot.hpp"

#include <cstdint>
#include <string>

namespace fl {
namespace i18n {
namespace lcmgmt {

// Turns what the C library and the environment say into the system locale. It changes the C
// library's locale, so it runs once, during start-up, under the manager's mutex.
class system_setting_reader {
public:
    system_setting_reader(Lcdb const& database, OvLocaleImpl& system_locale, std::int32_t& status,
                          std::string& status_message, locale_env_snapshot& setting);

    void read();

private:
    void read_c_library();
    void resolve_encodings(bool valid);
    void apply_l10n_data();
    void fill_system_locale();

    Lcdb const& database_;
    OvLocaleImpl& system_locale_;
    std::int32_t& status_;
    std::string& status_message_;
    locale_env_snapshot& setting_;
};

// The analysis of what was read: decides the six category locales, the fallbacks and the
// environment to install. Pure: it reads xpg and xpg_encoding and touches nothing outside the
// snapshot. Returns whether the setting is valid.
bool analyse_locale_setting(Lcdb const& database, locale_env_snapshot& setting);

// Drops every category name equal to the base locale; any other one means the categories differ.
void blank_base_locale_names(locale_env_snapshot& setting);

// The part of a locale name before its encoding and modifiers.
std::string locale_name_prefix(std::string const& name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
