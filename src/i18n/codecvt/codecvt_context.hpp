#ifndef FL_I18N_CODECVT_CODECVT_CONTEXT_HPP
#define FL_I18N_CODECVT_CODECVT_CONTEXT_HPP

#include <fl/i18n/codecvt/codecvt_call_back_mode.hpp>

#include "common/unique_converter.hpp"
#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/icu_error_family.hpp"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <string>

namespace fl {
namespace i18n {
namespace detail {

// The ICU converter of one converter object with the call-back state of both directions.
// Leaving a non-default mode always restores the call-back that the mode replaced.
class codecvt_context {
public:
    // Opens the named converter; an unknown name throws CvtInvalidEncodingName. ascii_runs
    // false keeps all of the text with ICU (a stream converter's state must see every byte);
    // otherwise is_ascii_transparent decides.
    explicit codecvt_context(std::string const& encoding, bool ascii_runs = true);
    // Adopts a converter that the caller opened or cloned, with what is known of its encoding.
    codecvt_context(unique_converter converter, bool ascii_transparent);
    codecvt_context(codecvt_context const&) = delete;
    codecvt_context& operator=(codecvt_context const&) = delete;
    ~codecvt_context();

    UConverter* get() const noexcept { return converter_.get(); }
    converter_use use() const noexcept { return {converter_.get(), ascii_transparent_}; }

    // substitution matters for call_back_substitute only.
    void change_from_call_back(codecvt_call_back_mode mode, std::string const& substitution);
    void change_to_call_back(codecvt_call_back_mode mode);
    void reset_from_call_back();
    void reset_to_call_back();
    codecvt_call_back_mode from_mode() const noexcept { return from_mode_; }
    codecvt_call_back_mode to_mode() const noexcept { return to_mode_; }

    // The MIME, else IANA, else Windows name of the converter, else ICU's own; cached.
    std::string const& get_standard_name();

private:
    void set_from_action(UConverterFromUCallback action, void const* context);
    void set_to_action(UConverterToUCallback action, void const* context);

    unique_converter converter_;
    codecvt_call_back_mode from_mode_ = call_back_default;
    codecvt_call_back_mode to_mode_ = call_back_default;
    UConverterFromUCallback saved_from_action_ = nullptr;
    UConverterToUCallback saved_to_action_ = nullptr;
    void const* saved_from_context_ = nullptr;
    void const* saved_to_context_ = nullptr;
    std::string canonical_name_;
    std::string standard_name_;
    std::string const no_name_;
    // Decided when the converter arrives, before any call-back is set (is_ascii_transparent).
    bool ascii_transparent_ = false;
};

// The converter of a converter object's context; CvtConversionFailure when there is none.
UConverter* require_converter(codecvt_context const* context);
converter_use require_use(codecvt_context const* context);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
