#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

// After start-up the database and the locales are read without locks from any thread.
TEST(ConcurrentReaders, CreateLocalesAndFallbacksFromSeveralThreads) {
    fl::i18n::initialize();
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&wrong] {
            for (int i = 0; i < 200; ++i) {
                auto const locale = fl::i18n::OvLocale::createLocale("sr-Latn_RS.UTF-8@x");
                if (locale->getLocaleName(fl::i18n::OvLocale::ctype) != "sr-Latn_RS" ||
                    fl::i18n::get_fallback_locales(*locale).size() != 3 ||
                    !fl::i18n::lcmgmt::is_supported_encoding("cp1252")) {
                    ++wrong;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong.load(), 0);
}
