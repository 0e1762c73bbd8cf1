#include "utf8_text.hpp"

#include <unicode/unistr.h>

namespace ovi18n_tool {

std::string to_utf8(fl::i18n::ustring const& text) {
    std::string out;
    icu::UnicodeString(text.data(), static_cast<int32_t>(text.size())).toUTF8String(out);
    return out;
}

fl::i18n::ustring from_utf8(std::string const& text) {
    icu::UnicodeString const decoded = icu::UnicodeString::fromUTF8(text);
    return fl::i18n::ustring(decoded.getBuffer(), static_cast<std::size_t>(decoded.length()));
}

}  // namespace ovi18n_tool
