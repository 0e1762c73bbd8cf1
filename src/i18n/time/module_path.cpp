#include <fl/i18n/time/module_path.hpp>

#include "i18n/time/one_shot_conversion.hpp"

#include "platform/posix_platform.hpp"

namespace fl {
namespace i18n {
namespace detail {

ustring get_module_path_from_address(void* address) {
    if (address == nullptr) {
        return ustring();
    }
    std::string const name = fl::filesystem::detail::platform::module_path_of(address);
    return default_bytes_to_ustring(name.data(), name.size());
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
