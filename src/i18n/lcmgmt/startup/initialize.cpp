#include <fl/i18n/facet/global_std_locale.hpp>
#include <fl/i18n/lcmgmt/manager.hpp>

#include "common/visible_call_once.hpp"
#include "i18n/lcmgmt/startup/startup_sequence.hpp"

#include <boost/thread/locks.hpp>

namespace fl {
namespace i18n {
namespace {

boost::once_flag initialize_once = BOOST_ONCE_INIT;

// The standard-library locale needs the encoding start-up decides, so it comes second.
void run_initialize() {
    initLcMgmtSystem();
    facet::init_global_std_locale(0x15);
}

}  // namespace

void initialize() {
    fl::detail::visible_call_once(initialize_once, &run_initialize);
}

void initLcMgmtSystem() {
    lcmgmt::manager_context& context = lcmgmt::manager_context::instance();
    boost::unique_lock<boost::mutex> guard(context.mutex);
    if (context.initialized) {
        return;
    }
    // Set first, so a start-up that fails half way is never retried.
    context.initialized = true;
    lcmgmt::run_startup_sequence(context);
}

}  // namespace i18n
}  // namespace fl
