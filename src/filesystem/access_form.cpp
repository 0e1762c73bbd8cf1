#include <fl/filesystem/access_form.hpp>

#include <fl/filesystem/filename_conversion.hpp>
#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/filename_errors.hpp"
#include "i18n/codecvt/ascii_runs.hpp"
#include "i18n/codecvt/default_converter.hpp"

namespace fl {
namespace filesystem {
namespace detail {
namespace {

std::string convert_with(fl::i18n::ustring const& text,
                         fl::i18n::converter<char, char16_t> const& cvt) {
    // An empty text never reaches the caller's converter.
    return text.empty() ? std::string() : cvt.do_convert(text.data(), text.size());
}

}  // namespace

std::string make_native_access_form(fl::i18n::ustring const& text) {
    return to_filesystem(text);
}

std::string make_native_access_form(fl::i18n::ustring const& text,
                                    fl::i18n::converter<char, char16_t> const& cvt) {
    return convert_with(text, cvt);
}

std::string make_native_access_form_with_cleanup(fl::i18n::ustring const& text) {
    auto const clean = make_native_form(text, true);
    return clean.empty() ? std::string() : to_filesystem(clean);
}

std::string make_native_access_form_with_cleanup(fl::i18n::ustring const& text,
                                                 fl::i18n::converter<char, char16_t> const& cvt) {
    return convert_with(make_native_form(text, true), cvt);
}

// Every operation on a path converts here, on the calling thread's own converter: no lock, and
// no failure on what the encoding can't hold. A pure-ASCII path in an encoding whose ASCII is
// itself by ICU's own tables (is_ascii_transparent) needs no converter at all: its bytes are
// what ICU would have written.
std::string to_filesystem(fl::i18n::ustring const& text) {
    if (fl::i18n::detail::default_encoding_is_ascii_transparent()) {
        std::string bytes(text.size(), '\0');
        if (fl::i18n::detail::copy_ascii(text.data(), text.size(), &bytes[0]) == text.size()) {
            return bytes;
        }
    }
    fl::i18n::detail::lent_default_converter const lent;
    return path_to_bytes(lent.use(), text.data(), text.size());
}

fl::i18n::ustring from_filesystem(std::string const& bytes) {
    if (fl::i18n::detail::default_encoding_is_ascii_transparent()) {
        fl::i18n::ustring text(bytes.size(), u'\0');
        if (fl::i18n::detail::copy_ascii(bytes.data(), bytes.size(), &text[0]) == bytes.size()) {
            return text;
        }
    }
    fl::i18n::detail::lent_default_converter const lent;
    return bytes_to_path(lent.use(), bytes.data(), bytes.size());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
