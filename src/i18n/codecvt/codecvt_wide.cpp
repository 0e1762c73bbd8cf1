#include <fl/i18n/codecvt/codecvt_wide.hpp>

#include "i18n/codecvt/utf32_arithmetic.hpp"

namespace fl {
namespace i18n {

codecvt_wstring_to_ustring::~codecvt_wstring_to_ustring() = default;

std::size_t codecvt_wstring_to_ustring::do_get_destination_size(wchar_t const* source,
                                                                std::size_t source_size) const {
    return source == nullptr ? 0 : detail::utf16_length(source, source_size);
}

std::basic_string<char16_t> codecvt_wstring_to_ustring::do_convert(wchar_t const* source,
                                                                   std::size_t source_size) const {
    return detail::widen_to_ustring(source, source_size);
}

std::size_t codecvt_wstring_to_ustring::do_convert(char16_t* destination,
                                                   std::size_t destination_size,
                                                   wchar_t const* source,
                                                   std::size_t source_size) const {
    return detail::utf32_to_utf16(destination, destination_size, source, source_size);
}

codecvt_ustring_to_wstring::~codecvt_ustring_to_wstring() = default;

std::size_t codecvt_ustring_to_wstring::do_get_destination_size(char16_t const* source,
                                                                std::size_t source_size) const {
    return source == nullptr ? 0 : detail::utf32_length(source, source_size);
}

std::wstring codecvt_ustring_to_wstring::do_convert(char16_t const* source,
                                                    std::size_t source_size) const {
    if (source == nullptr) {
        return std::wstring();
    }
    return detail::narrow_exactly<wchar_t>(source, source_size);
}

std::size_t codecvt_ustring_to_wstring::do_convert(wchar_t* destination,
                                                   std::size_t destination_size,
                                                   char16_t const* source,
                                                   std::size_t source_size) const {
    return detail::utf16_to_utf32(destination, destination_size, source, source_size);
}

}  // namespace i18n
}  // namespace fl
