#ifndef FL_I18N_LCMGMT_OV_LC_UTIL_HPP
#define FL_I18N_LCMGMT_OV_LC_UTIL_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <map>
#include <string>

namespace fl {
namespace i18n {

// Read-only reports of the locale manager; none of them starts it.
class FL_I18N_API OvLcUtil {
public:
    // 0 started, 1 the database failed to load, 2 not started, 3 the environment was invalid.
    static std::int32_t getLcStatus();
    static std::string getInitStatusMsg();
    static std::string getInitWarningMsg();
    // What start-up found before it rewrote the environment; all values empty before start-up.
    static std::map<std::string, std::string> getLocaleInformation();
};

}  // namespace i18n
}  // namespace fl

#endif
