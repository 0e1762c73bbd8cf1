#ifndef FL_I18N_TIME_ENVIRONMENT_HPP
#define FL_I18N_TIME_ENVIRONMENT_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace i18n {

// The process environment with values in the default encoding seen as ustring. Variable names
// are bytes and pass through unconverted. Bad arguments are reported the C way (errno, and -1
// or an empty string); only a failed conversion throws, with the conversion exceptions.

// An unset variable reads as the empty text, with errno left alone; an empty name is EINVAL.
FL_I18N_API ustring getenv(std::string const& name);

// Text that the default encoding cannot hold is substituted, not refused. An empty value is
// refused with EINVAL unless allow_empty is true. Returns the C library's result.
FL_I18N_API int setenv(std::string const& name, ustring const& value, int overwrite,
                       bool allow_empty);

FL_I18N_API int unsetenv(std::string const& name);

}  // namespace i18n
}  // namespace fl

#endif
