#ifndef FL_FILESYSTEM_ACCESS_FORM_HPP
#define FL_FILESYSTEM_ACCESS_FORM_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The bytes that go to the operating system. Without a converter the calling thread's file
// system converter is used, which substitutes what it can't encode instead of failing.

// The text as it stands, converted: no clean-up at all.
FL_I18N_API std::string make_native_access_form(fl::i18n::ustring const& text);
FL_I18N_API std::string make_native_access_form(fl::i18n::ustring const& text,
                                                fl::i18n::converter<char, char16_t> const& cvt);

// The native form with tilde expansion, then converted.
FL_I18N_API std::string make_native_access_form_with_cleanup(fl::i18n::ustring const& text);
FL_I18N_API std::string make_native_access_form_with_cleanup(
    fl::i18n::ustring const& text, fl::i18n::converter<char, char16_t> const& cvt);

FL_I18N_API std::string to_filesystem(fl::i18n::ustring const& text);
FL_I18N_API fl::i18n::ustring from_filesystem(std::string const& bytes);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
