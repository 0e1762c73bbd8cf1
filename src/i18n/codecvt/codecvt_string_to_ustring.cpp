#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>

#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/conversion_loops.hpp"
#include "i18n/codecvt/encoding_name.hpp"

namespace fl {
namespace i18n {

codecvt_string_to_ustring::codecvt_string_to_ustring(std::string const& encoding, bool lenient)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding))) {
    if (!lenient) {
        context_->change_to_call_back(call_back_stop);
    }
}

codecvt_string_to_ustring::codecvt_string_to_ustring(codecvt_call_back_mode mode,
                                                     std::string const& encoding)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding))) {
    if (mode != call_back_default) {
        context_->change_to_call_back(mode);
    }
}

codecvt_string_to_ustring::~codecvt_string_to_ustring() = default;

void codecvt_string_to_ustring::change_call_back(codecvt_call_back_mode mode) {
    if (context_) {
        context_->change_to_call_back(mode);
    }
}

void codecvt_string_to_ustring::reset_call_back() {
    if (context_) {
        context_->reset_to_call_back();
    }
}

codecvt_call_back_mode codecvt_string_to_ustring::get_call_back_mode() const {
    return context_ ? context_->to_mode() : call_back_default;
}

std::size_t codecvt_string_to_ustring::do_get_destination_size(char const* source,
                                                               std::size_t source_size) const {
    return detail::measure_to_ustring(detail::require_converter(context_.get()), source,
                                      source_size, detail::to_unicode_step);
}

std::basic_string<char16_t> codecvt_string_to_ustring::do_convert(char const* source,
                                                                  std::size_t source_size) const {
    return detail::convert_to_ustring(detail::require_converter(context_.get()), source,
                                      source_size, detail::to_unicode_step);
}

std::size_t codecvt_string_to_ustring::do_convert(char16_t* destination,
                                                  std::size_t destination_size, char const* source,
                                                  std::size_t source_size) const {
    UErrorCode error = U_ZERO_ERROR;
    return detail::convert_to_ustring_into(detail::require_converter(context_.get()), destination,
                                           destination_size, source, source_size, error,
                                           detail::to_unicode_step);
}

}  // namespace i18n
}  // namespace fl
