#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>

#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/encoding_name.hpp"

namespace fl {
namespace i18n {

codecvt_ustring_to_string::codecvt_ustring_to_string(std::string const& encoding, bool lenient)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding))) {
    if (!lenient) {
        context_->change_from_call_back(call_back_stop, std::string());
    }
}

codecvt_ustring_to_string::codecvt_ustring_to_string(codecvt_call_back_mode mode,
                                                     std::string const& encoding,
                                                     std::string const& substitution)
    : context_(new detail::codecvt_context(detail::encoding_or_global(encoding))) {
    if (mode != call_back_default) {
        context_->change_from_call_back(mode, substitution);
    }
}

codecvt_ustring_to_string::~codecvt_ustring_to_string() = default;

void codecvt_ustring_to_string::change_call_back(codecvt_call_back_mode mode,
                                                 std::string const& substitution) {
    if (context_) {
        context_->change_from_call_back(mode, substitution);
    }
}

void codecvt_ustring_to_string::reset_call_back() {
    if (context_) {
        context_->reset_from_call_back();
    }
}

codecvt_call_back_mode codecvt_ustring_to_string::get_call_back_mode() const {
    return context_ ? context_->from_mode() : call_back_default;
}

std::size_t codecvt_ustring_to_string::do_get_destination_size(char16_t const* source,
                                                               std::size_t source_size) const {
    return detail::from_ustring_into(detail::require_use(context_.get()), nullptr, 0, source,
                                     source_size, detail::conversion_errors);
}

std::string codecvt_ustring_to_string::do_convert(char16_t const* source,
                                                  std::size_t source_size) const {
    return detail::from_ustring(detail::require_use(context_.get()), source, source_size,
                                detail::conversion_errors);
}

std::size_t codecvt_ustring_to_string::do_convert(char* destination, std::size_t destination_size,
                                                  char16_t const* source,
                                                  std::size_t source_size) const {
    return detail::from_ustring_into(detail::require_use(context_.get()), destination,
                                     destination_size, source, source_size,
                                     detail::conversion_errors);
}

}  // namespace i18n
}  // namespace fl
