#include "platform/process_environment.hpp"

#include <cstdlib>

namespace fl {
namespace i18n {
namespace detail {
namespace platform {

char const* environment_value(char const* name) {
    return std::getenv(name);
}

int set_environment_value(char const* name, char const* value, int overwrite) {
    return ::setenv(name, value, overwrite);
}

int unset_environment_value(char const* name) {
    return ::unsetenv(name);
}

}  // namespace platform
}  // namespace detail
}  // namespace i18n
}  // namespace fl
