#ifndef FL_I18N_LCMGMT_LC_STATUS_HPP
#define FL_I18N_LCMGMT_LC_STATUS_HPP

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcmgmt {

// What OvLcUtil::getLcStatus() reports of start-up. The values are the interface: callers
// compare against the numbers.
enum lc_status : std::int32_t {
    status_initialized = 0,
    status_database_failed = 1,
    status_not_initialized = 2,
    // The environment named an invalid locale or encoding; start-up went on with a fallback.
    status_invalid_setting = 3,
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
