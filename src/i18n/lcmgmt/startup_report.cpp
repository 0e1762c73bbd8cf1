#include <fl/i18n/lcmgmt/startup_report.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {

std::string get_locale_database_file() {
    return lcmgmt::manager_context::instance().outcome().database_file;
}

std::vector<std::string> get_startup_warnings() {
    return lcmgmt::manager_context::instance().outcome().warnings;
}

}  // namespace i18n
}  // namespace fl
