#ifndef FL_I18N_LCMGMT_OV_LC_MGMT_EXCEPTION_HPP
#define FL_I18N_LCMGMT_OV_LC_MGMT_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {

// Failures of locale management. what() gives the message sentence; id and code identify the
// failure for programs, and detail carries the offending input where there is one.
class FL_I18N_API OvLcMgmtExceptionBase : public std::exception {
public:
    OvLcMgmtExceptionBase(std::string id, std::int32_t code, std::string message,
                          std::string detail = std::string());
    ~OvLcMgmtExceptionBase() override;

    char const* what() const noexcept override;

    std::string const& getId() const noexcept { return id_; }
    std::int32_t getCode() const noexcept { return code_; }
    std::string const& getMessage() const noexcept { return message_; }
    std::string const& getDetail() const noexcept { return detail_; }

private:
    std::string id_;
    std::int32_t code_;
    std::string message_;
    std::string detail_;
};

class FL_I18N_API OvLcInvLcName : public OvLcMgmtExceptionBase {
public:
    explicit OvLcInvLcName(std::string const& name);
    ~OvLcInvLcName() override;
};

class FL_I18N_API OvLcDataNotFound : public OvLcMgmtExceptionBase {
public:
    OvLcDataNotFound();
    ~OvLcDataNotFound() override;
};

class FL_I18N_API OvLcInvLcArgument : public OvLcMgmtExceptionBase {
public:
    OvLcInvLcArgument();
    ~OvLcInvLcArgument() override;
};

}  // namespace i18n
}  // namespace fl

#endif
