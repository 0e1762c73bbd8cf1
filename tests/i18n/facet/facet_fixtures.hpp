#ifndef TESTS_I18N_FACET_FACET_FIXTURES_HPP
#define TESTS_I18N_FACET_FACET_FIXTURES_HPP

#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/numpunct_facet.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <locale>
#include <memory>
#include <string>

namespace facet_test {

// A locale value whose only relevant property, the encoding, is chosen by the test.
inline std::unique_ptr<fl::i18n::OvLocaleImpl> locale_with_encoding(std::string const& encoding) {
    auto locale = std::make_unique<fl::i18n::OvLocaleImpl>(nullptr);
    locale->set_encoding(encoding);
    return locale;
}

// The classic locale with all three char16_t facets, the ctype facet built on `locale`.
inline std::locale char16_locale(fl::i18n::OvLocale const& locale) {
    std::locale result(std::locale::classic(), new fl::i18n::facet::ctype_facet<char16_t>(locale));
    result = std::locale(result, new fl::i18n::facet::numpunct_facet<char16_t>());
    return std::locale(result, new std::num_put<char16_t>(0));
}

inline std::ctype<char16_t> const& ctype_of(std::locale const& locale) {
    return std::use_facet<std::ctype<char16_t>>(locale);
}

}  // namespace facet_test

#endif
