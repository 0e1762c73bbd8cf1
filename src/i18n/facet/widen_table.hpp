#ifndef FL_I18N_FACET_WIDEN_TABLE_HPP
#define FL_I18N_FACET_WIDEN_TABLE_HPP

#include <unicode/utypes.h>

#include <memory>
#include <string>

namespace fl {
namespace i18n {
namespace facet {
namespace detail {

// What ICU answers for each byte widened alone, asked once when the facet is made: a converter
// per call would answer the same, since each call starts from a fresh converter.
struct widen_table {
    // False when ICU does not know the encoding; widening then raises CvtInvalidEncodingName.
    bool opened = false;
    // A stateless single-byte encoding in which every byte is one unit: a range widens byte by
    // byte as one ICU call over it would.
    bool bytewise = false;
    char16_t units[256] = {};
    // The failure of a byte's conversion, or U_ZERO_ERROR.
    UErrorCode errors[256] = {};
};

std::unique_ptr<widen_table const> make_widen_table(std::string const& encoding);

}  // namespace detail
}  // namespace facet
}  // namespace i18n
}  // namespace fl

#endif
