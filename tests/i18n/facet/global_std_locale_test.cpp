#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/global_std_locale.hpp>

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <cstdlib>
#include <sstream>

namespace facets = fl::i18n::facet::std_locale_facets;
using fl::i18n::facet::get_global_std_locale;
using fl::i18n::facet::init_global_std_locale;

namespace {

// Each CTest run of this program makes its first call with the mask in the environment, since
// only a process's first call has effect.
unsigned int first_mask() {
    char const* text = std::getenv("OVI18N_TEST_FIRST_MASK");
    return text ? static_cast<unsigned int>(std::strtoul(text, nullptr, 0)) : facets::all;
}

bool has_ctype(std::locale const& l) {
    return std::has_facet<std::ctype<char16_t>>(l);
}

bool has_numpunct(std::locale const& l) {
    return std::has_facet<std::numpunct<char16_t>>(l);
}

bool has_num_put(std::locale const& l) {
    return std::has_facet<std::num_put<char16_t>>(l);
}

TEST(GlobalStdLocale, OnlyTheFirstCallTakesEffect) {
    unsigned int const mask = first_mask();

    std::locale const& before = get_global_std_locale();
    EXPECT_FALSE(has_ctype(before));
    EXPECT_FALSE(has_numpunct(before));
    EXPECT_FALSE(has_num_put(before));
    EXPECT_TRUE(before == std::locale::classic());

    init_global_std_locale(mask);
    std::locale const& after = get_global_std_locale();
    EXPECT_EQ(&after, &before) << "references handed out earlier stay valid";
    ASSERT_TRUE(has_ctype(after));
    EXPECT_EQ(has_numpunct(after), (mask & (facets::numpunct | facets::num_put)) != 0);
    EXPECT_EQ(has_num_put(after), (mask & facets::num_put) != 0);

    auto const* ctype = dynamic_cast<fl::i18n::facet::ctype_facet<char16_t> const*>(
        &std::use_facet<std::ctype<char16_t>>(after));
    ASSERT_NE(ctype, nullptr);
    EXPECT_EQ(ctype->encoding_name(), "US-ASCII") << "the encoding before start-up";

    std::locale const snapshot = after;
    init_global_std_locale(mask == facets::all ? facets::ctype : facets::all);
    EXPECT_TRUE(get_global_std_locale() == snapshot);
    EXPECT_EQ(has_numpunct(get_global_std_locale()), has_numpunct(snapshot));
    EXPECT_EQ(has_num_put(get_global_std_locale()), has_num_put(snapshot));

    EXPECT_TRUE(std::locale() == std::locale::classic()) << "the process's locale is untouched";

    if (has_num_put(after)) {
        std::basic_ostringstream<char16_t> stream;
        stream.imbue(after);
        stream << 1234.5;
        EXPECT_EQ(stream.str(), u"1234.5");
    }
}

}  // namespace
