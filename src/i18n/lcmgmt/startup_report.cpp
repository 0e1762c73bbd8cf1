#include <fl/i18n/lcmgmt/startup_report.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <boost/thread/locks.hpp>

namespace fl {
namespace i18n {

// Start-up writes both under the mutex; taking it here keeps a reader from a racing thread safe.
std::string get_locale_database_file() {
    lcmgmt::manager_context& context = lcmgmt::manager_context::instance();
    boost::lock_guard<boost::mutex> guard(context.mutex);
    return context.database_file;
}

std::vector<std::string> get_startup_warnings() {
    lcmgmt::manager_context& context = lcmgmt::manager_context::instance();
    boost::lock_guard<boost::mutex> guard(context.mutex);
    return context.warnings;
}

}  // namespace i18n
}  // namespace fl
