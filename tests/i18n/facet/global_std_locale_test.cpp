#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/global_std_locale.hpp>

#include <gtest/gtest.h>

#include <cstdlib>

namespace facets = fl::i18n::facet::std_locale_facets;
using fl::i18n::facet::get_global_std_locale;
using fl::i18n::facet::init_global_std_locale;

namespace {

// Only a process's first call counts, so each CTest run of this program makes its first call
// with the mask given in the environment.
TEST(GlobalStdLocale, OnlyTheFirstCallTakesEffect) {
    char const* text = std::getenv("OVI18N_TEST_FIRST_MASK");
    unsigned int const mask = text ? unsigned(std::strtoul(text, nullptr, 0)) : facets::all;
    auto const facets_of = [](std::locale const& l) {
        return std::make_tuple(std::has_facet<std::ctype<char16_t>>(l),
                               std::has_facet<std::numpunct<char16_t>>(l),
                               std::has_facet<std::num_put<char16_t>>(l));
    };

    std::locale const& before = get_global_std_locale();
    EXPECT_EQ(facets_of(before), std::make_tuple(false, false, false));
    EXPECT_TRUE(before == std::locale::classic());

    init_global_std_locale(mask);
    std::locale const& after = get_global_std_locale();
    EXPECT_EQ(&after, &before) << "references handed out earlier stay valid";
    EXPECT_EQ(facets_of(after), std::make_tuple(true, (mask & 0x14) != 0, (mask & 0x10) != 0));
    auto const& ctype = dynamic_cast<fl::i18n::facet::ctype_facet<char16_t> const&>(
        std::use_facet<std::ctype<char16_t>>(after));
    EXPECT_EQ(ctype.encoding_name(), "US-ASCII") << "the encoding before start-up";

    std::locale const snapshot = after;
    init_global_std_locale(mask == facets::all ? facets::ctype : facets::all);
    EXPECT_TRUE(get_global_std_locale() == snapshot);
    EXPECT_EQ(facets_of(get_global_std_locale()), facets_of(snapshot));
    EXPECT_TRUE(std::locale() == std::locale::classic()) << "the process's locale is untouched";
}

}  // namespace
