#ifndef FL_I18N_LCMGMT_LOCALE_ENV_SNAPSHOT_HPP
#define FL_I18N_LCMGMT_LOCALE_ENV_SNAPSHOT_HPP

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

constexpr int posix_category_count = 12;
// The twelve category variables, then "LC_ALL" and "LANG".
constexpr int locale_env_var_count = 14;
constexpr int lc_all_var = 12;
constexpr int lang_var = 13;
constexpr int lc_numeric_index = 3;
constexpr int lc_messages_index = 5;

// LC_CTYPE, LC_COLLATE, LC_TIME, LC_NUMERIC, LC_MONETARY, LC_MESSAGES, LC_PAPER, LC_NAME,
// LC_ADDRESS, LC_TELEPHONE, LC_MEASUREMENT, LC_IDENTIFICATION: the first six are the
// OvLocale categories in the same order.
extern int const posix_categories[posix_category_count];
extern char const* const locale_env_var_names[locale_env_var_count];

// What start-up found in the environment and the C library, and what it decided.
// OVLOCALE_L10N_CONTROL as start-up read it; the database's "disable_l10n" flag can turn an
// unspecified setting into "off".
enum l10n_control_value : std::int32_t {
    l10n_unspecified = 0,
    l10n_on = 1,
    l10n_off = 2,
};

struct locale_env_snapshot {
    std::map<std::string, std::string> override_values;
    std::array<std::string, posix_category_count> xpg;
    std::array<std::string, posix_category_count> initial_xpg;
    std::array<std::string, locale_env_var_count> env;
    std::string xpg_encoding;
    // (canonical locale name, modifier with its "@") of the six OvLocale categories.
    std::array<std::pair<std::string, std::string>, 6> category_locale;
    std::string encoding;
    std::string terminal_encoding;
    bool all_same = true;
    std::string base_locale;
    std::array<std::string, posix_category_count> category_names;
    std::array<std::string, locale_env_var_count> new_env;
    std::vector<std::string> error_events;
    bool use_utf8_as_default = false;
    std::int32_t l10n_control = l10n_unspecified;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
