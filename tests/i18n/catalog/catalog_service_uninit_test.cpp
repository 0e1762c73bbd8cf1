// Every operation of the message service before a successful init.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/catalog/message_id_completion.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_tree.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::MessageCatalog;
using fl::i18n::OvLocale;
using fl::i18n::ustring;

TEST(CatalogServiceUninitTest, EveryOperationFailsUntilInitSucceeds) {
    catalog_tree const tree("catalog_service_uninit");
    tree.put_catalog("main/resources/app/en/msgs.xml", {{"greet", "Hello"}});
    ustring const main = tree.text("main");
    OvLocale const& en = OvLocale::classic();
    resource_core::BaseMsgID const greet("app:msgs", "greet", {});

    using not_initialized = MessageCatalog::MessageCatalogNotInitialized;
    using incorrect_root = MessageCatalog::MessageCatalogIncorrectRoot;
    struct {
        char const* operation;
        std::function<void()> call;
        std::function<bool(std::exception const&)> expected;
    } const cases[] = {
        {"GetMessageCatalog", [&] { MessageCatalog::GetMessageCatalog(CatalogID("app:msgs"), en); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"openCatalog",
         [&] { MessageCatalog::openCatalog(resource_core::BaseCatalogID("app:msgs"), en); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"get_message",
         [&] { MessageCatalog::get_message(fl::i18n::MessageID("app:msgs:greet"), en); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"get_default_locale_message", [&] { MessageCatalog::get_default_locale_message(greet); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"set_additional_resource_locations",
         [&] { MessageCatalog::set_additional_resource_locations({main}); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"remove_additional_resource_location",
         [&] { MessageCatalog::remove_additional_resource_location(main); },
         [](auto const& e) { return dynamic_cast<not_initialized const*>(&e) != nullptr; }},
        {"remove of an empty path",
         [&] { MessageCatalog::remove_additional_resource_location(ustring()); },
         [](auto const& e) {
             return dynamic_cast<MessageCatalog::InvalidPathSupplied const*>(&e) != nullptr;
         }},
        {"init without roots", [&] { MessageCatalog::MessageCatalogInit(std::vector<ustring>{}); },
         [](auto const& e) { return dynamic_cast<incorrect_root const*>(&e) != nullptr; }},
        {"init with a bad root", [&] { MessageCatalog::MessageCatalogInit(tree.text("nowhere")); },
         [](auto const& e) { return dynamic_cast<incorrect_root const*>(&e) != nullptr; }},
    };
    // Twice: a failed init leaves the service as uninitialised as before.
    for (int round = 0; round < 2; ++round) {
        for (auto const& c : cases) {
            try {
                c.call();
                ADD_FAILURE() << c.operation << " did not fail";
            } catch (std::exception const& e) {
                EXPECT_TRUE(c.expected(e)) << c.operation << ": " << e.what();
            }
        }
    }
    // Flushing an empty cache is no failure.
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:msgs"));
    auto const none = fl::i18n::getMessageIdCompletions(u"app:msgs:");
    EXPECT_TRUE(none.completions.empty());
    EXPECT_EQ(none.start_offset, 0);

    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(main));
    EXPECT_EQ(MessageCatalog::get_default_locale_message(greet), u"Hello");
}

}  // namespace
