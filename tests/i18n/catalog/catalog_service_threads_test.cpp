// The message service under concurrent use; every case runs under ThreadSanitizer.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_roots.hpp"
#include "i18n/catalog/catalog_tree.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::MessageCatalog;
using fl::i18n::MessageID;
using fl::i18n::OvLocale;
using fl::i18n::ustring;

int const catalogs = 6;

class CatalogServiceThreadsTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        tree = new catalog_tree("catalog_service_threads");
        for (int i = 0; i < catalogs; ++i) {
            std::string const n = std::to_string(i);
            tree->put_catalog("main/resources/t/en/c" + n + ".xml", {{"k", "text " + n}});
        }
        tree->put_catalog("extra/resources/addon/en/x.xml", {{"k", "extra"}});
        ASSERT_TRUE(MessageCatalog::MessageCatalogInit(tree->text("main")));
    }
    static catalog_tree* tree;
};
catalog_tree* CatalogServiceThreadsTest::tree = nullptr;

// Starts body(t) on count threads at once and waits for them.
void run_together(int count, std::function<void(int)> const& body) {
    std::atomic<int> waiting{count};
    std::vector<std::thread> threads;
    for (int t = 0; t < count; ++t) {
        threads.emplace_back([&, t] {
            --waiting;
            while (waiting.load() > 0) {
                std::this_thread::yield();
            }
            body(t);
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
}

TEST_F(CatalogServiceThreadsTest, OneCatalogFromManyThreadsIsOneObject) {
    std::vector<boost::shared_ptr<MessageCatalog const>> got(8);
    // Asked for in two locales that both come to the one English file.
    auto const swiss = OvLocale::createLocale("de_CH");
    run_together(8, [&](int t) {
        got[t] = MessageCatalog::GetMessageCatalog(CatalogID("t:c0"),
                                                   t % 2 ? OvLocale::classic() : *swiss);
    });
    for (auto const& catalog : got) {
        EXPECT_EQ(catalog, got[0]);
    }
}

TEST_F(CatalogServiceThreadsTest, DifferentCatalogsLoadAtOnce) {
    std::atomic<int> wrong{0};
    run_together(catalogs, [&](int t) {
        for (int i = 0; i < catalogs; ++i) {
            int const n = (t + i) % catalogs;
            ustring const text = MessageCatalog::get_message(
                MessageID("t:c" + std::to_string(n) + ":k"), OvLocale::classic());
            std::string const expected = "text " + std::to_string(n);
            wrong += text != ustring(expected.begin(), expected.end());
        }
    });
    EXPECT_EQ(wrong, 0);
}

TEST_F(CatalogServiceThreadsTest, FlushesRaceLookups) {
    std::atomic<int> wrong{0};
    run_together(4, [&](int t) {
        for (int i = 0; i < 300; ++i) {
            if (t == 0) {
                MessageCatalog::FlushCatalogFromCache(CatalogID("t:c1"));
            } else {
                auto const catalog =
                    MessageCatalog::GetMessageCatalog(CatalogID("t:c1"), OvLocale::classic());
                wrong += catalog->get_message_text("k") != u"text 1";
                wrong += MessageCatalog::get_message(MessageID("t:c2:k"), OvLocale::classic()) !=
                         u"text 2";
            }
        }
    });
    EXPECT_EQ(wrong, 0);
}

TEST_F(CatalogServiceThreadsTest, LocationsChangeWhileOthersRead) {
    std::atomic<int> wrong{0};
    run_together(4, [&](int t) {
        for (int i = 0; i < 100; ++i) {
            if (t == 0) {
                MessageCatalog::set_additional_resource_locations({tree->text("extra")});
                MessageCatalog::remove_additional_resource_location(tree->text("extra"));
                continue;
            }
            wrong +=
                MessageCatalog::get_message(MessageID("t:c3:k"), OvLocale::classic()) != u"text 3";
            std::size_t const roots = fl::i18n::catalog_resource_roots().size();
            wrong += roots != 1 && roots != 2;
            try {
                wrong += MessageCatalog::get_message(MessageID("addon:x:k"), OvLocale::classic()) !=
                         u"extra";
            } catch (MessageCatalog::MessageCatalogLoadFailed const&) {
            }
        }
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 1u);
}

}  // namespace
