#ifndef FL_I18N_TIME_MODULE_PATH_HPP
#define FL_I18N_TIME_MODULE_PATH_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace i18n {
namespace detail {

// The file that the module holding address was loaded from, as the loader names it (not
// necessarily absolute). Empty for a null address or one that lies in no loaded module.
FL_I18N_API ustring get_module_path_from_address(void* address);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
