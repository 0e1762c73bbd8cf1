#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>

#include <utility>

namespace fl {
namespace i18n {

OvLcMgmtExceptionBase::OvLcMgmtExceptionBase(std::string id, std::int32_t code, std::string message,
                                             std::string detail)
    : id_(std::move(id)), code_(code), message_(std::move(message)), detail_(std::move(detail)) {}

OvLcMgmtExceptionBase::~OvLcMgmtExceptionBase() = default;

char const* OvLcMgmtExceptionBase::what() const noexcept {
    return message_.c_str();
}

OvLcInvLcName::OvLcInvLcName(std::string const& name)
    : OvLcMgmtExceptionBase("fl:i18n:OvLcInvLcName", 1, "Invalid locale name.", name) {}
OvLcInvLcName::~OvLcInvLcName() = default;

OvLcDataNotFound::OvLcDataNotFound()
    : OvLcMgmtExceptionBase("fl:i18n:OvLcDataNotFound", 2, "Locale data not found.") {}
OvLcDataNotFound::~OvLcDataNotFound() = default;

OvLcInvLcArgument::OvLcInvLcArgument()
    : OvLcMgmtExceptionBase("fl:i18n:OvLcInvLcArgument", 4, "Invalid argument.") {}
OvLcInvLcArgument::~OvLcInvLcArgument() = default;

}  // namespace i18n
}  // namespace fl
