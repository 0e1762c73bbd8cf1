#include <fl/i18n/codecvt/stream_codecvt.hpp>

#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/encoding_name.hpp"

namespace fl {
namespace i18n {

namespace {

// ICU says 3 for UTF-8, too few for a supplementary character.
constexpr int utf8_max_char_size = 4;
constexpr int utf16_max_char_size = 2;

}  // namespace

stream_codecvt_ustring_to_string::stream_codecvt_ustring_to_string(std::string const& encoding,
                                                                   bool lenient)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding), false)) {
    if (!lenient) {
        context_->change_from_call_back(call_back_stop, std::string());
    }
}

stream_codecvt_ustring_to_string::~stream_codecvt_ustring_to_string() = default;

bool stream_codecvt_ustring_to_string::do_convert(char** to, char* to_end, char16_t const** from,
                                                  char16_t const* from_end, bool flush) const {
    UErrorCode error = U_ZERO_ERROR;
    ucnv_fromUnicode(detail::require_converter(context_.get()), to, to_end, from, from_end, nullptr,
                     flush, &error);
    if (error > U_ZERO_ERROR && error != U_BUFFER_OVERFLOW_ERROR) {
        do_reset_state();
        detail::throw_conversion_error(error);
    }
    return error == U_BUFFER_OVERFLOW_ERROR;
}

void stream_codecvt_ustring_to_string::do_reset_state() const {
    if (context_ && context_->get() != nullptr) {
        ucnv_resetFromUnicode(context_->get());
    }
}

int stream_codecvt_ustring_to_string::do_max_char_size() const {
    if (!context_ || context_->get() == nullptr) {
        return 0;
    }
    if (context_->get_standard_name() == "UTF-8") {
        return utf8_max_char_size;
    }
    return ucnv_getMaxCharSize(context_->get());
}

stream_codecvt_string_to_ustring::stream_codecvt_string_to_ustring(std::string const& encoding,
                                                                   bool lenient)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding), false)) {
    if (!lenient) {
        context_->change_to_call_back(call_back_stop);
    }
}

stream_codecvt_string_to_ustring::~stream_codecvt_string_to_ustring() = default;

bool stream_codecvt_string_to_ustring::do_convert(char16_t** to, char16_t* to_end,
                                                  char const** from, char const* from_end,
                                                  bool flush) const {
    UErrorCode error = U_ZERO_ERROR;
    ucnv_toUnicode(detail::require_converter(context_.get()), to, to_end, from, from_end, nullptr,
                   flush, &error);
    if (error > U_ZERO_ERROR && error != U_BUFFER_OVERFLOW_ERROR) {
        do_reset_state();
        detail::throw_conversion_error(error);
    }
    return error == U_BUFFER_OVERFLOW_ERROR;
}

void stream_codecvt_string_to_ustring::do_reset_state() const {
    if (context_ && context_->get() != nullptr) {
        ucnv_resetToUnicode(context_->get());
    }
}

int stream_codecvt_string_to_ustring::do_max_char_size() const {
    return utf16_max_char_size;
}

}  // namespace i18n
}  // namespace fl
