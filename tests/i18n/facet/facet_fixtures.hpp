#ifndef TESTS_I18N_FACET_FACET_FIXTURES_HPP
#define TESTS_I18N_FACET_FACET_FIXTURES_HPP

#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/numpunct_facet.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include <locale>
#include <memory>
#include <string>

namespace facet_test {

// The classic locale with all three char16_t facets, the ctype facet built on a locale value
// whose only relevant property, the encoding, the test chooses.
struct char16_locale {
    explicit char16_locale(std::string const& encoding)
        : ov(std::make_unique<fl::i18n::OvLocaleImpl>(nullptr)) {
        ov->set_encoding(encoding);
        locale = std::locale(locale, new fl::i18n::facet::ctype_facet<char16_t>(*ov));
        locale = std::locale(locale, new fl::i18n::facet::numpunct_facet<char16_t>());
        locale = std::locale(locale, new std::num_put<char16_t>(0));
    }

    std::ctype<char16_t> const& ctype() const {
        return std::use_facet<std::ctype<char16_t>>(locale);
    }

    std::unique_ptr<fl::i18n::OvLocaleImpl> ov;
    std::locale locale = std::locale::classic();
};

}  // namespace facet_test

#endif
