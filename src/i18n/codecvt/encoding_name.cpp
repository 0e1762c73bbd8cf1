#include "i18n/codecvt/encoding_name.hpp"

#include <fl/i18n/lcmgmt/ov_locale.hpp>

namespace fl {
namespace i18n {
namespace detail {

std::string encoding_or_global(std::string const& encoding) {
    return encoding.empty() ? OvLocale::global().getEncoding() : encoding;
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
