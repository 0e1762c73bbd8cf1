#include <fl/filesystem/access_form.hpp>

#include <fl/filesystem/filename_conversion.hpp>
#include <fl/filesystem/path_algebra.hpp>

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
// no failure on what the encoding can't hold.
std::string to_filesystem(fl::i18n::ustring const& text) {
    return path_to_bytes(fl::i18n::detail::thread_default_converter(), text.data(), text.size());
}

fl::i18n::ustring from_filesystem(std::string const& bytes) {
    return bytes_to_path(fl::i18n::detail::thread_default_converter(), bytes.data(), bytes.size());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
