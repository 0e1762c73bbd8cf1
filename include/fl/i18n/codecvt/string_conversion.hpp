#ifndef FL_I18N_CODECVT_STRING_CONVERSION_HPP
#define FL_I18N_CODECVT_STRING_CONVERSION_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace i18n {

// Between ustring and the process's default encoding: the global locale's encoding at the
// first conversion in the process (US-ASCII before start-up). Bad input is substituted. Safe
// from any number of threads at once. Null or empty input gives an empty result.
FL_I18N_API std::string to_string(ustring const& s);
FL_I18N_API ustring to_ustring(std::string const& s);
FL_I18N_API ustring to_ustring(char const* s);

// Through a converter of the caller's choice, used as it stands; e.g.
// to_ustring(bytes, codecvt_string_to_ustring("UTF-8", false)) throws on a bad sequence.
FL_I18N_API std::string to_string(ustring const& s, converter<char, char16_t> const& c);
FL_I18N_API ustring to_ustring(std::string const& s, converter<char16_t, char> const& c);
FL_I18N_API ustring to_ustring(char const* s, converter<char16_t, char> const& c);

// UTF-32 (wchar_t and char32_t alike) and UTF-16 by arithmetic; never fail. A lone surrogate
// becomes U+FFFD towards UTF-32 and passes unchanged towards UTF-16.
FL_I18N_API ustring to_ustring(std::wstring const& s);
FL_I18N_API ustring to_ustring(wchar_t const* s);
FL_I18N_API std::wstring to_wstring(ustring const& s);
FL_I18N_API ustring to_ustring(std::u32string const& s);
FL_I18N_API ustring to_ustring(char32_t const* s);
FL_I18N_API std::u32string to_u32string(ustring const& s);
FL_I18N_API std::u32string to_u32string(char16_t const* s);

}  // namespace i18n
}  // namespace fl

#endif
