#include "i18n/catalog/format_text.hpp"

#include "common/throw_exception.hpp"

#include <unicode/fieldpos.h>
#include <unicode/fmtable.h>
#include <unicode/locid.h>
#include <unicode/msgfmt.h>
#include <unicode/strenum.h>
#include <unicode/unistr.h>
#include <boost/numeric/conversion/cast.hpp>

#include <algorithm>
#include <memory>
#include <vector>

namespace fl {
namespace i18n {
namespace catalog {
namespace {

[[noreturn]] void format_incorrect() {
    fl::detail::throw_exception(MessageCatalog::MessageFormatIncorrect());
}

void check(UErrorCode status) {
    if (U_FAILURE(status)) {
        format_incorrect();
    }
}

icu::UnicodeString to_unicode(ustring const& text) {
    return icu::UnicodeString(text.data(), boost::numeric_cast<int32_t>(text.size()));
}

// The distinct hole names in sorted order; a hole used twice is one name.
std::vector<icu::UnicodeString> sorted_hole_names(icu::MessageFormat& format) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::StringEnumeration> const names(format.getFormatNames(status));
    check(status);
    if (!names) {
        format_incorrect();
    }
    std::vector<icu::UnicodeString> result;
    for (;;) {
        status = U_ZERO_ERROR;
        icu::UnicodeString const* const name = names->snext(status);
        check(status);
        if (name == nullptr) {
            break;
        }
        result.push_back(*name);
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

struct to_formattable : boost::static_visitor<icu::Formattable> {
    icu::Formattable operator()(long value) const {
        return icu::Formattable(static_cast<int64_t>(value));
    }
    // Bytes in the process's default code page, read by ICU's own default converter.
    icu::Formattable operator()(std::string const& value) const {
        return icu::Formattable(
            icu::UnicodeString(value.data(), boost::numeric_cast<int32_t>(value.size())));
    }
    icu::Formattable operator()(ustring const& value) const {
        return icu::Formattable(to_unicode(value));
    }
};

}  // namespace

ustring format_text(ustring const& text, MessageCatalog::ArgList const& arguments,
                    bool check_count) {
    icu::UnicodeString const pattern = to_unicode(text);
    UErrorCode status = U_ZERO_ERROR;
    // Catalog authors write apostrophes as plain text; only a quoted hole stays literal.
    icu::UnicodeString const quoted = icu::MessageFormat::autoQuoteApostrophe(pattern, status);
    check(status);
    status = U_ZERO_ERROR;
    // Messages are formatted alike in every locale, so numbers read the same in logs and tests.
    icu::MessageFormat format(quoted, icu::Locale("en", "US", "POSIX"), status);
    check(status);
    bool const named = format.usesNamedArguments();

    std::vector<icu::UnicodeString> names;
    bool names_collected = false;
    if (check_count) {
        names = sorted_hole_names(format);
        names_collected = true;
        if (names.size() != arguments.size()) {
            fl::detail::throw_exception(
                MessageCatalog::IncorrectHoleCount(arguments.size(), names.size()));
        }
    }

    icu::UnicodeString result;
    status = U_ZERO_ERROR;
    if (arguments.empty()) {
        icu::FieldPosition position;
        format.format(nullptr, 0, result, position, status);
    } else {
        std::vector<icu::Formattable> values;
        values.reserve(arguments.size());
        for (auto const& argument : arguments) {
            values.push_back(boost::apply_visitor(to_formattable(), argument));
        }
        int32_t const count = boost::numeric_cast<int32_t>(values.size());
        if (!named) {
            icu::FieldPosition position;
            format.format(values.data(), count, result, position, status);
        } else {
            if (!names_collected) {
                names = sorted_hole_names(format);
            }
            // More arguments than names would read past the names; ICU takes count of each.
            int32_t const used = std::min(count, boost::numeric_cast<int32_t>(names.size()));
            format.format(names.data(), values.data(), used, result, status);
        }
    }
    check(status);
    return ustring(result.getBuffer(), static_cast<std::size_t>(result.length()));
}

}  // namespace catalog
}  // namespace i18n
}  // namespace fl
