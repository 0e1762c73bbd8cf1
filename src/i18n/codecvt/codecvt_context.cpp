#include "i18n/codecvt/codecvt_context.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/ascii_runs.hpp"
#include "i18n/codecvt/invisible_char_call_backs.hpp"

#include <utility>

namespace fl {
namespace i18n {
namespace detail {

namespace {

// ICU keeps the length of the substitution bytes in a signed 8-bit count.
constexpr std::size_t max_substitution_bytes = 127;

// The option of an escape mode; a value of the family that names no option escapes in ICU's
// own form.
char const* escape_option(codecvt_call_back_mode mode) {
    switch (mode) {
        case call_back_escape_java:
            return UCNV_ESCAPE_JAVA;
        case call_back_escape_c:
            return UCNV_ESCAPE_C;
        case call_back_escape_xml_dec:
            return UCNV_ESCAPE_XML_DEC;
        case call_back_escape_xml_hex:
            return UCNV_ESCAPE_XML_HEX;
        case call_back_escape_unicode:
            return UCNV_ESCAPE_UNICODE;
        case call_back_escape_css2:
            return UCNV_ESCAPE_CSS2;
        default:
            return UCNV_ESCAPE_ICU;
    }
}

}  // namespace

codecvt_context::codecvt_context(std::string const& encoding, bool ascii_runs) {
    UErrorCode error = U_ZERO_ERROR;
    unique_converter opened(ucnv_open(encoding.c_str(), &error));
    if (error > U_ZERO_ERROR || !opened) {
        fl::detail::throw_exception(CvtInvalidEncodingName(encoding));
    }
    converter_ = std::move(opened);
    ascii_transparent_ = ascii_runs && is_ascii_transparent(converter_.get());
}

codecvt_context::codecvt_context(unique_converter converter, bool ascii_transparent)
    : converter_(std::move(converter)), ascii_transparent_(ascii_transparent) {}

codecvt_context::~codecvt_context() = default;

void codecvt_context::set_from_action(UConverterFromUCallback action, void const* context) {
    UErrorCode error = U_ZERO_ERROR;
    UConverterFromUCallback old_action = nullptr;
    void const* old_context = nullptr;
    ucnv_setFromUCallBack(converter_.get(), action, context, &old_action, &old_context, &error);
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(CvtCallBackSettingFailure());
    }
    saved_from_action_ = old_action;
    saved_from_context_ = old_context;
}

void codecvt_context::set_to_action(UConverterToUCallback action, void const* context) {
    UErrorCode error = U_ZERO_ERROR;
    UConverterToUCallback old_action = nullptr;
    void const* old_context = nullptr;
    ucnv_setToUCallBack(converter_.get(), action, context, &old_action, &old_context, &error);
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(CvtCallBackSettingFailure());
    }
    saved_to_action_ = old_action;
    saved_to_context_ = old_context;
}

void codecvt_context::change_from_call_back(codecvt_call_back_mode mode,
                                            std::string const& substitution) {
    if (!converter_) {
        return;
    }
    // Restoring comes first, so a refused value leaves the default behaviour, not the old mode.
    if (from_mode_ != call_back_default) {
        reset_from_call_back();
    }
    if ((mode & call_back_escape_mask) != 0) {
        set_from_action(from_u_call_back_escape_with_invisible_chars, escape_option(mode));
        from_mode_ = mode;
        return;
    }
    switch (mode) {
        case call_back_default:
            return;
        case call_back_stop:
            if (from_mode_ != call_back_stop) {
                set_from_action(from_u_call_back_stop_with_invisible_chars, nullptr);
                from_mode_ = call_back_stop;
            }
            return;
        case call_back_substitute: {
            if (from_mode_ != call_back_default || substitution.empty()) {
                fl::detail::throw_exception(CvtInvalidArgument());
            }
            if (substitution.size() > max_substitution_bytes) {
                fl::detail::throw_exception(CvtSizeTooLarge());
            }
            UErrorCode error = U_ZERO_ERROR;
            ucnv_setSubstChars(converter_.get(), substitution.data(),
                               static_cast<int8_t>(substitution.size()), &error);
            if (error > U_ZERO_ERROR) {
                fl::detail::throw_exception(CvtCallBackSettingFailure());
            }
            // The mode stays at default on purpose: the bytes work through ICU's default
            // call-back, and there is nothing to restore.
            return;
        }
        case call_back_reserved:
            fl::detail::throw_exception(CvtNonSupportedMode());
        default:
            fl::detail::throw_exception(CvtInvalidArgument());
    }
}

void codecvt_context::change_to_call_back(codecvt_call_back_mode mode) {
    if (!converter_) {
        return;
    }
    if (to_mode_ != call_back_default) {
        reset_to_call_back();
    }
    if ((mode & call_back_escape_mask) != 0 || mode == call_back_substitute ||
        mode == call_back_reserved) {
        fl::detail::throw_exception(CvtNonSupportedMode());
    }
    switch (mode) {
        case call_back_default:
            return;
        case call_back_stop:
            set_to_action(UCNV_TO_U_CALLBACK_STOP, nullptr);
            to_mode_ = call_back_stop;
            return;
        default:
            fl::detail::throw_exception(CvtInvalidArgument());
    }
}

void codecvt_context::reset_from_call_back() {
    if (!converter_ || from_mode_ == call_back_default) {
        return;
    }
    UErrorCode error = U_ZERO_ERROR;
    ucnv_setFromUCallBack(converter_.get(), saved_from_action_, saved_from_context_, nullptr,
                          nullptr, &error);
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(CvtCallBackSettingFailure());
    }
    saved_from_action_ = nullptr;
    saved_from_context_ = nullptr;
    from_mode_ = call_back_default;
}

void codecvt_context::reset_to_call_back() {
    if (!converter_ || to_mode_ == call_back_default) {
        return;
    }
    UErrorCode error = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter_.get(), saved_to_action_, saved_to_context_, nullptr, nullptr,
                        &error);
    if (error > U_ZERO_ERROR) {
        fl::detail::throw_exception(CvtCallBackSettingFailure());
    }
    saved_to_action_ = nullptr;
    saved_to_context_ = nullptr;
    to_mode_ = call_back_default;
}

std::string const& codecvt_context::get_standard_name() {
    if (!standard_name_.empty()) {
        return standard_name_;
    }
    if (!converter_) {
        return no_name_;
    }
    if (canonical_name_.empty()) {
        UErrorCode error = U_ZERO_ERROR;
        char const* name = ucnv_getName(converter_.get(), &error);
        if (error <= U_ZERO_ERROR && name != nullptr) {
            canonical_name_ = name;
        }
    }
    char const* standard = nullptr;
    for (char const* const table : {"MIME", "IANA", "WINDOWS"}) {
        UErrorCode error = U_ZERO_ERROR;
        standard = ucnv_getStandardName(canonical_name_.c_str(), table, &error);
        if (standard != nullptr) {
            break;
        }
    }
    standard_name_ = standard != nullptr ? standard : "";
    if (standard_name_.empty()) {
        standard_name_ = canonical_name_;
    }
    return standard_name_;
}

UConverter* require_converter(codecvt_context const* context) {
    if (context == nullptr || context->get() == nullptr) {
        fl::detail::throw_exception(CvtConversionFailure());
    }
    return context->get();
}

converter_use require_use(codecvt_context const* context) {
    require_converter(context);
    return context->use();
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
