#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>

#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/conversion_core.hpp"
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
    return detail::to_ustring_into(detail::require_use(context_.get()), nullptr, 0, source,
                                   source_size, detail::conversion_errors);
}

std::basic_string<char16_t> codecvt_string_to_ustring::do_convert(char const* source,
                                                                  std::size_t source_size) const {
    return detail::to_ustring(detail::require_use(context_.get()), source, source_size,
                              detail::conversion_errors);
}

std::size_t codecvt_string_to_ustring::do_convert(char16_t* destination,
                                                  std::size_t destination_size, char const* source,
                                                  std::size_t source_size) const {
    return detail::to_ustring_into(detail::require_use(context_.get()), destination,
                                   destination_size, source, source_size,
                                   detail::conversion_errors);
}

}  // namespace i18n
}  // namespace fl
