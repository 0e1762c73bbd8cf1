#include <fl/i18n/codecvt/string_conversion.hpp>

#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/default_converter.hpp"
#include "i18n/codecvt/utf32_arithmetic.hpp"

#include <cstring>
#include <cwchar>

namespace fl {
namespace i18n {

namespace {

// Each call converts on the calling thread's own converter, so the default encoding needs no
// lock; it is the clone a call used to make, kept for the thread's next call and reset between
// calls, so every call still starts from a fresh converter with ICU's default call-backs.
std::string default_from_ustring(char16_t const* source, std::size_t size) {
    detail::lent_default_converter const lent;
    return detail::from_ustring(lent.use(), source, size, detail::conversion_errors);
}

ustring default_to_ustring(char const* source, std::size_t size) {
    detail::lent_default_converter const lent;
    return detail::to_ustring(lent.use(), source, size, detail::conversion_errors);
}

template <class Unit>
std::size_t length_to_zero(Unit const* s) {
    std::size_t length = 0;
    while (s[length] != Unit()) {
        ++length;
    }
    return length;
}

}  // namespace

std::string to_string(ustring const& s) {
    return s.empty() ? std::string() : default_from_ustring(s.data(), s.size());
}

ustring to_ustring(std::string const& s) {
    return s.empty() ? ustring() : default_to_ustring(s.data(), s.size());
}

ustring to_ustring(char const* s) {
    // Only null is short-circuited: "" still runs a (zero-length) conversion.
    return s == nullptr ? ustring() : default_to_ustring(s, std::strlen(s));
}

std::string to_string(ustring const& s, converter<char, char16_t> const& c) {
    return s.empty() ? std::string() : c.do_convert(s.data(), s.size());
}

ustring to_ustring(std::string const& s, converter<char16_t, char> const& c) {
    return s.empty() ? ustring() : c.do_convert(s.data(), s.size());
}

ustring to_ustring(char const* s, converter<char16_t, char> const& c) {
    if (s == nullptr || *s == '\0') {
        return ustring();
    }
    return c.do_convert(s, std::strlen(s));
}

ustring to_ustring(std::wstring const& s) {
    return detail::widen_to_ustring(s.data(), s.size());
}

ustring to_ustring(wchar_t const* s) {
    return s == nullptr ? ustring() : detail::widen_to_ustring(s, std::wcslen(s));
}

std::wstring to_wstring(ustring const& s) {
    return detail::narrow_exactly<wchar_t>(s.data(), s.size());
}

ustring to_ustring(std::u32string const& s) {
    return detail::widen_to_ustring(s.data(), s.size());
}

ustring to_ustring(char32_t const* s) {
    return s == nullptr ? ustring() : detail::widen_to_ustring(s, length_to_zero(s));
}

std::u32string to_u32string(ustring const& s) {
    return detail::narrow_at_most<char32_t>(s.data(), s.size());
}

std::u32string to_u32string(char16_t const* s) {
    return s == nullptr ? std::u32string() : detail::narrow_at_most<char32_t>(s, length_to_zero(s));
}

}  // namespace i18n
}  // namespace fl
