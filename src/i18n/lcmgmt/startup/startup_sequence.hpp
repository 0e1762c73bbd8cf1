#ifndef FL_I18N_LCMGMT_STARTUP_STARTUP_SEQUENCE_HPP
#define FL_I18N_LCMGMT_STARTUP_STARTUP_SEQUENCE_HPP

#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

// The start-up work of initLcMgmtSystem; the caller holds the mutex.
void run_startup_sequence(manager_context& context);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
