#ifndef FL_PLATFORM_PROCESS_ENVIRONMENT_HPP
#define FL_PLATFORM_PROCESS_ENVIRONMENT_HPP

namespace fl {
namespace i18n {
namespace detail {
namespace platform {

// The C library's environment calls of the whole library. They report as the C library does:
// errno is left as the call leaves it.

// getenv: the value's bytes, or null when the variable is unset.
char const* environment_value(char const* name);
// setenv and unsetenv: 0, or -1 with errno set.
int set_environment_value(char const* name, char const* value, int overwrite);
int unset_environment_value(char const* name);

}  // namespace platform
}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
