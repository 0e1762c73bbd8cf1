#include <fl/i18n/facet/global_std_locale.hpp>

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <boost/thread/barrier.hpp>

#include <sstream>
#include <thread>
#include <vector>

namespace facets = fl::i18n::facet::std_locale_facets;
using fl::i18n::facet::get_global_std_locale;
using fl::i18n::facet::init_global_std_locale;

namespace {

struct thread_result {
    std::locale const* seen = nullptr;
    char16_t widened = 0;
    char narrowed = 0;
    fl::i18n::ustring printed;
};

TEST(GlobalStdLocaleThreads, ConcurrentFirstCallsInstallOneConsistentLocale) {
    constexpr int thread_count = 12;
    boost::barrier start(thread_count);
    std::vector<thread_result> results(thread_count);
    std::vector<std::thread> threads;
    for (int i = 0; i < thread_count; ++i) {
        threads.emplace_back([&, i] {
            start.wait();
            // Two different masks race; whichever comes first decides for everyone.
            init_global_std_locale(i % 2 ? facets::ctype : facets::all);
            std::locale const& locale = get_global_std_locale();
            thread_result& result = results[i];
            result.seen = &locale;
            auto const& ctype = std::use_facet<std::ctype<char16_t>>(locale);
            result.widened = ctype.widen('x');
            result.narrowed = ctype.narrow(char16_t(0x00E9), '?');
            if (std::has_facet<std::num_put<char16_t>>(locale)) {
                std::basic_ostringstream<char16_t> stream;
                stream.imbue(locale);
                stream << 1234.5 << u' ' << i % 2;
                result.printed = stream.str().substr(0, 6);
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }

    std::locale const& locale = get_global_std_locale();
    bool const all_installed = std::has_facet<std::num_put<char16_t>>(locale);
    EXPECT_EQ(std::has_facet<std::numpunct<char16_t>>(locale), all_installed);
    for (auto const& result : results) {
        EXPECT_EQ(result.seen, &locale);
        EXPECT_EQ(result.widened, u'x');
        EXPECT_EQ(result.narrowed, '\x1A');
        EXPECT_EQ(result.printed, all_installed ? u"1234.5" : u"");
    }
}

}  // namespace
