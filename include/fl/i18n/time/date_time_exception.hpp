#ifndef FL_I18N_TIME_DATE_TIME_EXCEPTION_HPP
#define FL_I18N_TIME_DATE_TIME_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {
namespace date_time {

// Failures of time conversion. what() gives the identifier text; id() tells the leaf apart.
class FL_I18N_API date_time_exception_base : public std::exception {
public:
    date_time_exception_base(char const* message, std::int32_t id);
    date_time_exception_base(date_time_exception_base const& other);
    ~date_time_exception_base() override;

    char const* what() const noexcept override;

    std::string const& message() const noexcept { return message_; }
    std::int32_t id() const noexcept { return id_; }

private:
    std::string message_;
    std::int32_t id_;
};

// A time that can't be expressed: not-a-date-time given where a point in time is needed.
class FL_I18N_API invalid_data_error : public date_time_exception_base {
public:
    invalid_data_error();
    invalid_data_error(invalid_data_error const& other);
    ~invalid_data_error() override;
};

}  // namespace date_time
}  // namespace i18n
}  // namespace fl

#endif
