#include <fl/i18n/lcmgmt/system_setting.hpp>

#include "i18n/lcmgmt/encoding_standard_name.hpp"
#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

system_setting_context get_original_user_locale_setting() {
    locale_env_snapshot const& setting = manager_context::instance().outcome().setting;
    system_setting_context result;
    result.encoding = setting.xpg_encoding;
    for (int i = 0; i < posix_category_count; ++i) {
        if (!setting.xpg[i].empty()) {
            result.categories.push_back({posix_categories[i], setting.xpg[i]});
        }
    }
    for (int i = 0; i < locale_env_var_count; ++i) {
        if (!setting.env[i].empty()) {
            result.env_vars.push_back({locale_env_var_names[i], setting.env[i]});
        }
    }
    return result;
}

bool is_supported_encoding(std::string const& name) {
    Lcdb const& database = manager_context::instance().database();
    if (database.find_encoding_entry(name)) {
        return true;
    }
    std::string const standard = encoding_standard_name(name);
    return !standard.empty() && database.find_encoding_entry(standard) != nullptr;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
