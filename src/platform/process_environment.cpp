#include "platform/process_environment.hpp"

#include <cstdlib>

namespace fl {
namespace i18n {
namespace detail {
namespace platform {

char const* environment_value(std::string const& name) {
    return std::getenv(name.c_str());
}

int set_environment_value(std::string const& name, std::string const& value, int overwrite) {
    return ::setenv(name.c_str(), value.c_str(), overwrite);
}

int unset_environment_value(std::string const& name) {
    return ::unsetenv(name.c_str());
}

}  // namespace platform
}  // namespace detail
}  // namespace i18n
}  // namespace fl
