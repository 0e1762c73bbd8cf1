#ifndef FL_I18N_FACET_GLOBAL_STD_LOCALE_HPP
#define FL_I18N_FACET_GLOBAL_STD_LOCALE_HPP

#include <fl/i18n/export.hpp>

#include <locale>

namespace fl {
namespace i18n {
namespace facet {

// What init_global_std_locale installs beside the classic facets.
namespace std_locale_facets {
// The ctype facet for char16_t; always installed, so this bit is not tested.
constexpr unsigned int ctype = 0x01;
// The classic number punctuation for char16_t.
constexpr unsigned int numpunct = 0x04;
// The number formatter for char16_t, which brings the punctuation with it.
constexpr unsigned int num_put = 0x10;
constexpr unsigned int all = ctype | numpunct | num_put;
}  // namespace std_locale_facets

// Builds the library's standard-library locale from the classic one and the char16_t facets,
// with the encoding of OvLocale::global() as it is now. Only the first call has effect; later
// ones, whatever their mask, change nothing. std::locale::global is not touched.
FL_I18N_API void init_global_std_locale(unsigned int mask);

// The locale built by init_global_std_locale, or a copy of the classic locale before it. The
// reference stays valid for the life of the process; reading it while the first
// init_global_std_locale runs is not safe.
FL_I18N_API std::locale const& get_global_std_locale();

}  // namespace facet
}  // namespace i18n
}  // namespace fl

#endif
