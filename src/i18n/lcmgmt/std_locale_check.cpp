#include <fl/i18n/lcmgmt/system_setting.hpp>

#include "i18n/lcmgmt/locale_env_apply.hpp"
#include "i18n/lcmgmt/manager_context.hpp"

#include <boost/thread/locks.hpp>

#include <exception>
#include <locale>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

// Tries each category on its own first, so that a failure names the category at fault.
bool std_locale_builds() {
    static std::locale::category const categories[] = {
        std::locale::ctype,   std::locale::collate,  std::locale::time,
        std::locale::numeric, std::locale::monetary, std::locale::messages};
    std::vector<std::string> failed;
    for (std::locale::category category : categories) {
        try {
            std::locale(std::locale::classic(), "", category);
        } catch (std::exception const&) {
            failed.push_back(std::to_string(category));
        }
    }
    if (failed.empty()) {
        try {
            std::locale("");
        } catch (std::exception const&) {
            failed.push_back("all");
        }
    }
    return failed.empty();
}

}  // namespace

bool is_std_locale_valid() {
    manager_context& context = manager_context::instance();
    boost::unique_lock<boost::mutex> guard(context.mutex);
    return std_locale_builds();
}

void fix_invalid_std_locale() {
    manager_context& context = manager_context::instance();
    boost::unique_lock<boost::mutex> guard(context.mutex);
    if (!std_locale_builds()) {
        install_locale_env(context.setting);
    }
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
