#ifndef FL_I18N_CODECVT_CODECVT_EXCEPTION_HPP
#define FL_I18N_CODECVT_CODECVT_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {

// Identifies a conversion failure for programs; the values are part of the interface.
enum codecvt_excp_id : std::int32_t {
    codecvt_invalid_argument = 1,
    codecvt_invalid_encoding_name = 2,
    codecvt_call_back_setting_failure = 3,
    codecvt_non_supported_mode = 4,
    codecvt_invalid_character = 5,
    codecvt_size_too_large = 6,
    codecvt_conversion_failure = 7,
};

// Every conversion failure derives from this. what() is a sentence for some leaves and the
// leaf's identifier for others; which one is fixed per class.
class FL_I18N_API CvtExceptionBase : public std::exception {
public:
    CvtExceptionBase(char const* message, codecvt_excp_id id);
    CvtExceptionBase(CvtExceptionBase const& other);
    ~CvtExceptionBase() override;

    char const* what() const noexcept override;
    codecvt_excp_id get_id() const noexcept { return id_; }

private:
    std::string message_;
    codecvt_excp_id id_;
};

class FL_I18N_API CvtInvalidArgument : public CvtExceptionBase {
public:
    CvtInvalidArgument();
};

// Keeps the name that was refused, so that a caller can report it.
class FL_I18N_API CvtInvalidEncodingName : public CvtExceptionBase {
public:
    explicit CvtInvalidEncodingName(std::string const& encoding_name);
    CvtInvalidEncodingName(CvtInvalidEncodingName const& other);
    ~CvtInvalidEncodingName() override;

    std::string const& get_encoding_name() const noexcept { return encoding_name_; }

private:
    std::string encoding_name_;
};

class FL_I18N_API CvtCallBackSettingFailure : public CvtExceptionBase {
public:
    CvtCallBackSettingFailure();
};

class FL_I18N_API CvtNonSupportedMode : public CvtExceptionBase {
public:
    CvtNonSupportedMode();
};

class FL_I18N_API CvtInvalidCharacter : public CvtExceptionBase {
public:
    CvtInvalidCharacter();
};

class FL_I18N_API CvtSizeTooLarge : public CvtExceptionBase {
public:
    CvtSizeTooLarge();
};

class FL_I18N_API CvtConversionFailure : public CvtExceptionBase {
public:
    CvtConversionFailure();
};

}  // namespace i18n
}  // namespace fl

#endif
