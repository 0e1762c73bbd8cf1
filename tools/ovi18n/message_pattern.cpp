#include "message_pattern.hpp"

#include <unicode/locid.h>
#include <unicode/messagepattern.h>
#include <unicode/msgfmt.h>
#include <unicode/strenum.h>

#include <algorithm>
#include <memory>

namespace ovi18n_tool {
namespace {

// Auto-quoting only inserts apostrophes, each right after one of the raw text that is meant as
// text. An apostrophe that formatting skips and that the raw text holds, one that opens a
// quotation (as in '{0}') or the second of a pair the author doubled, doesn't come out as written.
bool apostrophes_change(icu::UnicodeString const& raw, icu::UnicodeString const& quoted) {
    UErrorCode status = U_ZERO_ERROR;
    icu::MessagePattern const pattern(quoted, nullptr, status);
    if (U_FAILURE(status)) {
        return false;
    }
    std::vector<bool> inserted(static_cast<std::size_t>(quoted.length()), false);
    for (int32_t i = 0, j = 0; j < quoted.length(); ++j) {
        if (i < raw.length() && raw.charAt(i) == quoted.charAt(j)) {
            ++i;
        } else {
            inserted[static_cast<std::size_t>(j)] = true;
        }
    }
    for (int32_t p = 0; p < pattern.countParts(); ++p) {
        icu::MessagePattern::Part const& part = pattern.getPart(p);
        int32_t const at = part.getIndex();
        if (part.getType() == UMSGPAT_PART_TYPE_SKIP_SYNTAX && quoted.charAt(at) == u'\'' &&
            !inserted[static_cast<std::size_t>(at)]) {
            return true;
        }
    }
    return false;
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

    result.apostrophes_changed = apostrophes_change(raw, quoted);
    return result;
}

}  // namespace ovi18n_tool
