#include "i18n/lcmgmt/encoding_standard_name.hpp"
#include "i18n/lcmgmt/system_setting_reader.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

struct name_and_modifier {
    std::string name;  // canonical; empty when the database doesn't know the locale
    std::string modifier;
};

name_and_modifier resolve(Lcdb const& database, std::string const& locale) {
    std::size_t const at = locale.find('@');
    return {database.canonical_locale_name(locale_name_prefix(locale)),
            at == std::string::npos ? std::string() : locale.substr(at)};
}

// Catalogs have no "en_US_POSIX", so messages fall back to "en_US".
char const* fallback_name(int category) {
    return category == lc_messages_index ? "en_US" : "en_US_POSIX";
}

}  // namespace

std::string locale_name_prefix(std::string const& name) {
    return name.substr(0, name.find_first_of(".@"));
}

void blank_base_locale_names(locale_env_snapshot& setting) {
    for (std::string& name : setting.category_names) {
        if (name.empty()) {
            continue;
        }
        if (name == setting.base_locale) {
            name.clear();
        } else {
            setting.all_same = false;
        }
    }
}

bool analyse_locale_setting(Lcdb const& database, locale_env_snapshot& setting) {
    setting.base_locale = setting.xpg[0];
    setting.category_names = setting.xpg;
    blank_base_locale_names(setting);

    name_and_modifier const base = resolve(database, setting.base_locale);
    bool valid =
        database.find_encoding_entry(encoding_standard_name(setting.xpg_encoding)) != nullptr;

    for (int i = 0; i < 6; ++i) {
        std::string& own = setting.category_names[i];
        name_and_modifier chosen = own.empty() ? base : resolve(database, own);
        if (chosen.name.empty()) {
            chosen.name = fallback_name(i);
            valid = false;
            if (own.empty()) {
                setting.base_locale = "C";
            } else {
                own = "C";
            }
        }
        setting.category_locale[i] = {chosen.name, chosen.modifier};
    }
    // The other categories can't fall back in OvLocale; an unknown one is simply not passed on.
    for (int i = 6; i < posix_category_count; ++i) {
        std::string& own = setting.category_names[i];
        if (!own.empty() && database.canonical_locale_name(locale_name_prefix(own)).empty()) {
            own.clear();
        }
    }
    // The process formats numbers the C way, whatever the user asked.
    setting.category_names[lc_numeric_index] = "C";
    blank_base_locale_names(setting);

    setting.new_env.fill(std::string());
    setting.new_env[lang_var] = setting.base_locale;
    if (!setting.all_same) {
        for (int i = 0; i < posix_category_count; ++i) {
            if (!setting.category_names[i].empty()) {
                setting.new_env[i] = setting.category_names[i];
            }
        }
    }
    if (setting.l10n_control == l10n_off && setting.new_env[lang_var] != "C") {
        setting.new_env[lc_messages_index] = "C";
    }
    return valid;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
