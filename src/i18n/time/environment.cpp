#include <fl/i18n/time/environment.hpp>

#include "i18n/time/one_shot_conversion.hpp"

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace fl {
namespace i18n {

ustring getenv(std::string const& name) {
    if (name.empty()) {
        errno = EINVAL;
        return ustring();
    }
    char const* const value = std::getenv(name.c_str());
    if (value == nullptr) {
        return ustring();
    }
    return detail::default_bytes_to_ustring(value, std::strlen(value));
}

int setenv(std::string const& name, ustring const& value, int overwrite, bool allow_empty) {
    if (name.empty() || (value.empty() && !allow_empty)) {
        errno = EINVAL;
        return -1;
    }
    std::string const bytes = detail::default_ustring_to_bytes(value);
    return ::setenv(name.c_str(), bytes.c_str(), overwrite);
}

int unsetenv(std::string const& name) {
    if (name.empty()) {
        errno = EINVAL;
        return -1;
    }
    return ::unsetenv(name.c_str());
}

}  // namespace i18n
}  // namespace fl
