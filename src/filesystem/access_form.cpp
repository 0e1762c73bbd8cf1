#include <fl/filesystem/access_form.hpp>

#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/filename_conversion.hpp"

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
    return to_filesystem_bytes(text);
}

std::string make_native_access_form(fl::i18n::ustring const& text,
                                    fl::i18n::converter<char, char16_t> const& cvt) {
    return convert_with(text, cvt);
}

std::string make_native_access_form_with_cleanup(fl::i18n::ustring const& text) {
    auto const clean = make_native_form(text, true);
    return clean.empty() ? std::string() : to_filesystem_bytes(clean);
}

std::string make_native_access_form_with_cleanup(fl::i18n::ustring const& text,
                                                 fl::i18n::converter<char, char16_t> const& cvt) {
    return convert_with(make_native_form(text, true), cvt);
}

std::string to_filesystem(fl::i18n::ustring const& text) {
    return to_filesystem_bytes(text);
}

fl::i18n::ustring from_filesystem(std::string const& bytes) {
    return from_filesystem_bytes(bytes);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
