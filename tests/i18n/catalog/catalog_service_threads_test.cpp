// The message service under concurrent use; runs under ThreadSanitizer.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_roots.hpp"
#include "i18n/catalog/catalog_tree.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::MessageID;
using MC = fl::i18n::MessageCatalog;

// Starts body(t) on count threads at once and counts the wrong answers they report.
int run_together(int count, std::function<int(int)> const& body) {
    std::atomic<int> waiting{count};
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < count; ++t) {
        threads.emplace_back([&, t] {
            for (--waiting; waiting.load() > 0;) {
                std::this_thread::yield();
            }
            wrong += body(t);
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    return wrong;
}

// Whether the message k of catalog t:c<n> reads "text <n>".
bool reads(int n, fl::i18n::OvLocale const& locale = fl::i18n::OvLocale::classic()) {
    std::string const text = "text " + std::to_string(n);
    return MC::get_message(MessageID("t:c" + std::to_string(n) + ":k"), locale) ==
           fl::i18n::ustring(text.begin(), text.end());
}

TEST(CatalogServiceThreadsTest, LoadsHitsFlushesAndLocationChangesTogether) {
    catalog_tree const tree("catalog_service_threads");
    for (int n = 0; n < 6; ++n) {
        tree.put_catalog("main/resources/t/en/c" + std::to_string(n) + ".xml",
                         {{"k", "text " + std::to_string(n)}});
    }
    tree.put_catalog("extra/resources/addon/en/x.xml", {{"k", "extra"}});
    ASSERT_TRUE(MC::MessageCatalogInit(tree.text("main")));

    // One catalog asked for at once; its load is long enough for all to miss the cache, and its
    // file is of the very locale asked for, so only the one key leads to it.
    std::vector<std::pair<std::string, std::string>> many(3000, {"k", "text"});
    for (std::size_t i = 1; i < many.size(); ++i) {
        many[i].first += std::to_string(i);
    }
    tree.put_catalog("main/resources/t/en_US/big.xml", many);
    std::vector<boost::shared_ptr<MC const>> got(8);
    run_together(8, [&](int t) {
        got[t] = MC::GetMessageCatalog(CatalogID("t:big"), fl::i18n::OvLocale::classic());
        return 0;
    });
    EXPECT_EQ(std::count(got.begin(), got.end(), got[0]), 8);

    // Different catalogs loading at once, in two locales that come to the same files.
    auto const swiss = fl::i18n::OvLocale::createLocale("de_CH");
    EXPECT_EQ(run_together(6, [&](int t) { return !reads(t) + !reads((t + 1) % 6, *swiss); }), 0);

    // Flushes and location changes racing lookups.
    EXPECT_EQ(run_together(4,
                           [&](int t) {
                               int wrong = 0;
                               for (int i = 0; i < 200; ++i) {
                                   if (t == 0) {
                                       MC::FlushCatalogFromCache(CatalogID("t:c1"));
                                   } else if (t == 1) {
                                       MC::set_additional_resource_locations({tree.text("extra")});
                                       MC::remove_additional_resource_location(tree.text("extra"));
                                   } else {
                                       wrong += !reads(1) + !reads(2);
                                       std::size_t const roots =
                                           fl::i18n::catalog_resource_roots().size();
                                       wrong += roots != 1 && roots != 2;
                                       try {
                                           wrong += MC::get_message(
                                                        MessageID("addon:x:k"),
                                                        fl::i18n::OvLocale::classic()) != u"extra";
                                       } catch (MC::MessageCatalogLoadFailed const&) {
                                       }
                                   }
                               }
                               return wrong;
                           }),
              0);
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 1u);
}

}  // namespace
