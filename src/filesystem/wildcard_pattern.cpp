#include <fl/filesystem/wildcard_pattern.hpp>

#include <cstring>

namespace fl {
namespace filesystem {
namespace detail {

namespace {

// Any text, carriage returns included: "." alone stops at every line terminator.
constexpr char16_t const any_text[] = u"(.|\\r)*";

bool is_metacharacter(char16_t unit) {
    return unit < 0x80 && unit != 0 && std::strchr("$()*+.?[\\^{|}", static_cast<char>(unit));
}

}  // namespace

// Plain appends give the same text as a stream would: every piece is a unit copied as it is.
fl::i18n::ustring generate_pattern_from_filename(fl::i18n::ustring const& filename,
                                                 velmor_pattern_string_generator const&) {
    if (filename.empty()) {
        return fl::i18n::ustring();
    }
    if (filename == u"." || filename == u"..") {
        return u"^.*$";
    }
    fl::i18n::ustring pattern(u"^");
    bool star = false;
    for (char16_t const unit : filename) {
        if (unit == u'*') {
            star = true;
            continue;
        }
        if (star) {
            pattern += any_text;
            star = false;
        }
        if (is_metacharacter(unit)) {
            pattern += u'\\';
        }
        pattern += unit;
    }
    if (star) {
        pattern += any_text;
    }
    pattern += u'$';
    return pattern;
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
