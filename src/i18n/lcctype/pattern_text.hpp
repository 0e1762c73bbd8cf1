#ifndef FL_I18N_LCCTYPE_PATTERN_TEXT_HPP
#define FL_I18N_LCCTYPE_PATTERN_TEXT_HPP

#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// Bits of pattern_match's normalization field.
constexpr std::int32_t normalize_bit = 0x1;
constexpr std::int32_t decompose_bit = 0x2;

// A text as handed to ICU's regular expressions: either the caller's own units, or their
// normal form in an automatic buffer of 1024 units, or on the heap beyond that.
class pattern_text {
public:
    pattern_text() = default;
    pattern_text(pattern_text const&) = delete;
    pattern_text& operator=(pattern_text const&) = delete;

    // The text as it is. A text above 0x7FFFFFFF units throws boost::numeric::positive_overflow.
    void borrow(ustring const& text);
    // NFD when normalization holds decompose_bit, NFC otherwise; false when ICU fails. A text
    // already in that form is borrowed, which is what normalising it would give.
    bool normalize(ustring const& text, std::int32_t normalization);

    char16_t const* data() const noexcept { return data_; }
    std::int32_t length() const noexcept { return length_; }

private:
    static constexpr std::size_t automatic_size = 1024;

    char16_t automatic_[automatic_size];
    ustring heap_;
    char16_t const* data_ = u"";
    std::int32_t length_ = 0;
};

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
