#include <fl/i18n/time/module_path.hpp>

#include "i18n/time/one_shot_conversion.hpp"

#include <dlfcn.h>

#include <cstring>

namespace fl {
namespace i18n {
namespace detail {

ustring get_module_path_from_address(void* address) {
    if (address == nullptr) {
        return ustring();
    }
    Dl_info info{};
    char const* name = "";
    if (dladdr(address, &info) != 0 && info.dli_fname != nullptr) {
        name = info.dli_fname;
    }
    return default_bytes_to_ustring(name, std::strlen(name));
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
