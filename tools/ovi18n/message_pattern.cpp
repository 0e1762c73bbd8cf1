#include "message_pattern.hpp"

#include <unicode/fieldpos.h>
#include <unicode/locid.h>
#include <unicode/msgfmt.h>
#include <unicode/strenum.h>

#include <algorithm>
#include <memory>

namespace ovi18n_tool {
namespace {

int count_apostrophes(icu::UnicodeString const& text) {
    int count = 0;
    for (int32_t i = 0; i < text.length(); ++i) {
        count += text.charAt(i) == u'\'';
    }
    return count;
}

}  // namespace

message_pattern read_message_pattern(fl::i18n::ustring const& text) {
    message_pattern result;
    icu::UnicodeString const raw(text.data(), static_cast<int32_t>(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString const quoted = icu::MessageFormat::autoQuoteApostrophe(raw, status);
    if (U_FAILURE(status)) {
        return result;
    }
    icu::MessageFormat format(quoted, icu::Locale("en", "US", "POSIX"), status);
    if (U_FAILURE(status)) {
        return result;
    }
    std::unique_ptr<icu::StringEnumeration> const names(format.getFormatNames(status));
    if (U_FAILURE(status) || !names) {
        return result;
    }
    for (;;) {
        status = U_ZERO_ERROR;
        icu::UnicodeString const* const name = names->snext(status);
        if (U_FAILURE(status) || name == nullptr) {
            break;
        }
        std::string utf8;
        result.holes.push_back(name->toUTF8String(utf8));
    }
    std::sort(result.holes.begin(), result.holes.end());
    result.holes.erase(std::unique(result.holes.begin(), result.holes.end()), result.holes.end());
    result.valid = true;

    // Without arguments ICU leaves each hole as "{name}", so only quoting can change the count.
    icu::UnicodeString output;
    icu::FieldPosition position;
    status = U_ZERO_ERROR;
    format.format(nullptr, 0, output, position, status);
    result.apostrophes_changed =
        U_SUCCESS(status) && count_apostrophes(output) != count_apostrophes(raw);
    return result;
}

}  // namespace ovi18n_tool
