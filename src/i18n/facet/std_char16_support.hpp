#ifndef FL_I18N_FACET_STD_CHAR16_SUPPORT_HPP
#define FL_I18N_FACET_STD_CHAR16_SUPPORT_HPP

#include <locale>

#ifndef __GLIBCXX__
#error "The char16_t facets build on libstdc++'s own ctype and numpunct members."
#endif

// The standard library declares ctype and numpunct for every character type but defines their
// members for char and wchar_t only. These are the char16_t members, defined in this library,
// so that the facets for char16_t can derive from the standard ones. They name libstdc++'s
// internals (__c_locale, the numpunct cache), so they stay out of the installed headers: the
// standard templates leave these members undefined, and consumers link the ones here. The plain
// std::ctype and std::numpunct for char16_t behave like the "C" locale on ASCII.
namespace std {

template <>
ctype<char16_t>::~ctype();
template <>
bool ctype<char16_t>::do_is(mask m, char16_t c) const;
template <>
char16_t const* ctype<char16_t>::do_is(char16_t const* lo, char16_t const* hi, mask* vec) const;
template <>
char16_t const* ctype<char16_t>::do_scan_is(mask m, char16_t const* lo, char16_t const* hi) const;
template <>
char16_t const* ctype<char16_t>::do_scan_not(mask m, char16_t const* lo, char16_t const* hi) const;
template <>
char16_t ctype<char16_t>::do_toupper(char16_t c) const;
template <>
char16_t const* ctype<char16_t>::do_toupper(char16_t* lo, char16_t const* hi) const;
template <>
char16_t ctype<char16_t>::do_tolower(char16_t c) const;
template <>
char16_t const* ctype<char16_t>::do_tolower(char16_t* lo, char16_t const* hi) const;
template <>
char16_t ctype<char16_t>::do_widen(char c) const;
template <>
char const* ctype<char16_t>::do_widen(char const* lo, char const* hi, char16_t* to) const;
template <>
char ctype<char16_t>::do_narrow(char16_t c, char dfault) const;
template <>
char16_t const* ctype<char16_t>::do_narrow(char16_t const* lo, char16_t const* hi, char dfault,
                                           char* to) const;

template <>
ctype_byname<char16_t>::ctype_byname(char const* name, size_t refs);

template <>
numpunct<char16_t>::~numpunct();
// libstdc++ names this member; the library only defines it.
template <>
// NOLINTNEXTLINE(bugprone-reserved-identifier)
void numpunct<char16_t>::_M_initialize_numpunct(__c_locale cloc);

}  // namespace std

#endif
