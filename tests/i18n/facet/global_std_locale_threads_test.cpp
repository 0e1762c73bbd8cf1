#include <fl/i18n/facet/global_std_locale.hpp>

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <sstream>
#include <vector>

#include "support/run_together.hpp"

namespace facets = fl::i18n::facet::std_locale_facets;
using fl::i18n::facet::get_global_std_locale;
using fl::i18n::facet::init_global_std_locale;

namespace {

// Threads race with two masks; whichever call comes first decides for all, and every thread then
// uses the facets at once.
TEST(GlobalStdLocaleThreads, ConcurrentFirstCallsInstallOneConsistentLocale) {
    constexpr int thread_count = 12;
    std::vector<std::locale const*> seen(thread_count);
    std::vector<fl::i18n::ustring> printed(thread_count);
    run_together(thread_count, [&](int i) {
        init_global_std_locale(i % 2 ? facets::ctype : facets::all);
        std::locale const& locale = get_global_std_locale();
        seen[i] = &locale;
        auto const& ctype = std::use_facet<std::ctype<char16_t>>(locale);
        printed[i] = {ctype.widen('x'), char16_t(ctype.narrow(char16_t(0x00E9), '?'))};
        if (std::has_facet<std::num_put<char16_t>>(locale)) {
            std::basic_ostringstream<char16_t> stream;
            stream.imbue(locale);
            stream << 1234.5;
            printed[i] += stream.str();
        }
    });

    std::locale const& locale = get_global_std_locale();
    bool const all = std::has_facet<std::num_put<char16_t>>(locale);
    EXPECT_EQ(std::has_facet<std::numpunct<char16_t>>(locale), all);
    for (int i = 0; i < thread_count; ++i) {
        EXPECT_EQ(seen[i], &locale);
        EXPECT_EQ(printed[i], all ? u"x\x1A"
                                    u"1234.5"
                                  : u"x\x1A");
    }
}

}  // namespace
