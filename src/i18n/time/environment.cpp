#include <fl/i18n/time/environment.hpp>

#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/default_converter.hpp"
#include "platform/process_environment.hpp"

#include <cerrno>
#include <cstring>

namespace fl {
namespace i18n {

// The values convert on the calling thread's own converter for the default encoding, reset
// after each use, in place of a clone per call: the same fresh converter with ICU's default
// call-backs, so unmappable text is substituted. The family keeps the bounds of a one-call
// conversion (CvtSizeTooLarge beyond ICU's 32-bit counts).

ustring getenv(std::string const& name) {
    if (name.empty()) {
        errno = EINVAL;
        return ustring();
    }
    char const* const value = detail::platform::environment_value(name.c_str());
    if (value == nullptr) {
        return ustring();
    }
    detail::lent_default_converter const lent;
    return detail::to_ustring(lent.use(), value, std::strlen(value),
                              detail::bounded_conversion_errors);
}

int setenv(std::string const& name, ustring const& value, int overwrite, bool allow_empty) {
    if (name.empty() || (value.empty() && !allow_empty)) {
        errno = EINVAL;
        return -1;
    }
    std::string bytes;
    {
        detail::lent_default_converter const lent;
        bytes = detail::from_ustring(lent.use(), value.data(), value.size(),
                                     detail::bounded_conversion_errors);
    }
    return detail::platform::set_environment_value(name.c_str(), bytes.c_str(), overwrite);
}

int unsetenv(std::string const& name) {
    if (name.empty()) {
        errno = EINVAL;
        return -1;
    }
    return detail::platform::unset_environment_value(name.c_str());
}

}  // namespace i18n
}  // namespace fl
