#include <fl/i18n/time/module_path.hpp>

#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/default_converter.hpp"
#include "platform/posix_platform.hpp"

namespace fl {
namespace i18n {
namespace detail {

ustring get_module_path_from_address(void* address) {
    if (address == nullptr) {
        return ustring();
    }
    std::string const name = fl::filesystem::detail::platform::module_path_of(address);
    // The thread's own default converter, reset after use, stands for a clone per call.
    lent_default_converter const lent;
    return to_ustring(lent.use(), name.data(), name.size(), bounded_conversion_errors);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
