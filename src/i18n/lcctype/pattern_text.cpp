#include "i18n/lcctype/pattern_text.hpp"

#include <unicode/unorm2.h>
#include <boost/numeric/conversion/cast.hpp>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

void pattern_text::borrow(ustring const& text) {
    length_ = boost::numeric_cast<std::int32_t>(text.size());
    data_ = text.data();
}

bool pattern_text::normalize(ustring const& text, std::int32_t normalization) {
    borrow(text);
    if (length_ == 0) {
        return true;
    }
    UErrorCode error = U_ZERO_ERROR;
    UNormalizer2 const* form = (normalization & decompose_bit) != 0 ? unorm2_getNFDInstance(&error)
                                                                    : unorm2_getNFCInstance(&error);
    if (error > U_ZERO_ERROR) {
        return false;
    }
    // Most texts are already normal: skip the copy a full pass would make. On any doubt (a
    // "maybe" answer or an error) the full pass below decides.
    if (unorm2_spanQuickCheckYes(form, data_, length_, &error) == length_ &&
        error <= U_ZERO_ERROR) {
        return true;
    }
    error = U_ZERO_ERROR;
    std::int32_t needed = unorm2_normalize(form, text.data(), length_, automatic_,
                                           static_cast<std::int32_t>(automatic_size), &error);
    if (error <= U_ZERO_ERROR) {
        data_ = automatic_;
        length_ = needed;
        return true;
    }
    if (error != U_BUFFER_OVERFLOW_ERROR) {
        return false;
    }
    heap_.resize(static_cast<std::size_t>(needed));
    error = U_ZERO_ERROR;
    needed = unorm2_normalize(form, text.data(), length_, heap_.data(), needed, &error);
    if (error > U_ZERO_ERROR) {
        return false;
    }
    data_ = heap_.data();
    length_ = needed;
    return true;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
