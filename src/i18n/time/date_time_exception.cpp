#include <fl/i18n/time/date_time_exception.hpp>

namespace fl {
namespace i18n {
namespace date_time {

date_time_exception_base::date_time_exception_base(char const* message, std::int32_t id)
    : message_(message), id_(id) {}

date_time_exception_base::date_time_exception_base(date_time_exception_base const& other) = default;

date_time_exception_base::~date_time_exception_base() = default;

char const* date_time_exception_base::what() const noexcept {
    return message_.c_str();
}

invalid_data_error::invalid_data_error()
    : date_time_exception_base("fl:i18n:date_time:invalid_data_error", 1) {}

invalid_data_error::invalid_data_error(invalid_data_error const& other) = default;

invalid_data_error::~invalid_data_error() = default;

}  // namespace date_time
}  // namespace i18n
}  // namespace fl
