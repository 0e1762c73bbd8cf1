#include <fl/i18n/time/timezone_exception.hpp>

namespace fl {
namespace i18n {
namespace time_zone {

timezone_exception_base::timezone_exception_base(char const* text, std::int32_t code,
                                                 char const* description)
    : text_(text), code_(code), description_(description) {}

timezone_exception_base::timezone_exception_base(timezone_exception_base const& other) = default;

timezone_exception_base::~timezone_exception_base() = default;

char const* timezone_exception_base::what() const noexcept {
    return text_.c_str();
}

invalid_time_data::invalid_time_data()
    : timezone_exception_base("fl::i18n::timezone::invalid_time_data", 1, "Invalid time data.") {}

invalid_time_data::invalid_time_data(invalid_time_data const& other) = default;

invalid_time_data::~invalid_time_data() = default;

invalid_timezone_id::invalid_timezone_id()
    : timezone_exception_base("fl::i18n::timezone::invalid_timezone_id", 2,
                              "Invalid timezone id.") {}

invalid_timezone_id::invalid_timezone_id(invalid_timezone_id const& other) = default;

invalid_timezone_id::~invalid_timezone_id() = default;

}  // namespace time_zone
}  // namespace i18n
}  // namespace fl
