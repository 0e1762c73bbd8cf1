#include <fl/i18n/codecvt/codecvt_exception.hpp>

namespace fl {
namespace i18n {

CvtExceptionBase::CvtExceptionBase(char const* message, codecvt_excp_id id)
    : message_(message), id_(id) {}

CvtExceptionBase::CvtExceptionBase(CvtExceptionBase const& other) = default;

CvtExceptionBase::~CvtExceptionBase() = default;

char const* CvtExceptionBase::what() const noexcept {
    return message_.c_str();
}

CvtInvalidArgument::CvtInvalidArgument()
    : CvtExceptionBase("fl:i18n:CvtInvalidArgument", codecvt_invalid_argument) {}

CvtInvalidEncodingName::CvtInvalidEncodingName(std::string const& encoding_name)
    : CvtExceptionBase("Invalid encoding name specified.", codecvt_invalid_encoding_name),
      encoding_name_(encoding_name) {}

CvtInvalidEncodingName::CvtInvalidEncodingName(CvtInvalidEncodingName const& other) = default;

CvtInvalidEncodingName::~CvtInvalidEncodingName() = default;

CvtCallBackSettingFailure::CvtCallBackSettingFailure()
    : CvtExceptionBase("fl:i18n:CvtCallBackSettingFailure", codecvt_call_back_setting_failure) {}

CvtNonSupportedMode::CvtNonSupportedMode()
    : CvtExceptionBase("fl:i18n:CvtNonSupportedMode", codecvt_non_supported_mode) {}

CvtInvalidCharacter::CvtInvalidCharacter()
    : CvtExceptionBase("Invalid character code sequence detected.", codecvt_invalid_character) {}

CvtSizeTooLarge::CvtSizeTooLarge()
    : CvtExceptionBase("Data size too large for character code conversion.",
                       codecvt_size_too_large) {}

CvtConversionFailure::CvtConversionFailure()
    : CvtExceptionBase("Failed to convert character code.", codecvt_conversion_failure) {}

}  // namespace i18n
}  // namespace fl
