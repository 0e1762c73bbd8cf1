#ifndef FL_I18N_TIME_TIMEZONE_EXCEPTION_HPP
#define FL_I18N_TIME_TIMEZONE_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {
namespace time_zone {

// Failures of time zone handling. what() gives the identifier text; the sentence is kept as the
// description for whoever wants to show one.
class FL_I18N_API timezone_exception_base : public std::exception {
public:
    timezone_exception_base(char const* text, std::int32_t code, char const* description);
    timezone_exception_base(timezone_exception_base const& other);
    ~timezone_exception_base() override;

    char const* what() const noexcept override;

    std::int32_t code() const noexcept { return code_; }
    std::string const& description() const noexcept { return description_; }

private:
    std::string text_;
    std::int32_t code_;
    std::string description_;
};

// A time outside the 32-bit seconds the conversion works in, or a conversion ICU refused.
class FL_I18N_API invalid_time_data : public timezone_exception_base {
public:
    invalid_time_data();
    invalid_time_data(invalid_time_data const& other);
    ~invalid_time_data() override;
};

// A zone identifier that ICU doesn't know, that isn't ASCII, or a system zone ICU doesn't know.
class FL_I18N_API invalid_timezone_id : public timezone_exception_base {
public:
    invalid_timezone_id();
    invalid_timezone_id(invalid_timezone_id const& other);
    ~invalid_timezone_id() override;
};

}  // namespace time_zone
}  // namespace i18n
}  // namespace fl

#endif
