// Every operation of the message service before a successful init.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/catalog/message_id_completion.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_tree.hpp"

#include <gtest/gtest.h>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::ustring;
using MC = fl::i18n::MessageCatalog;

TEST(CatalogServiceUninitTest, EveryOperationFailsUntilInitSucceeds) {
    catalog_tree const tree("catalog_service_uninit");
    tree.put_catalog("main/resources/app/en/msgs.xml", {{"greet", "Hello"}});
    ustring const main = tree.text("main");
    fl::i18n::OvLocale const& en = fl::i18n::OvLocale::classic();
    resource_core::BaseMsgID const greet("app:msgs", "greet", {});
    // Twice: a failed init leaves the service as it was.
    for (int round = 0; round < 2; ++round) {
        EXPECT_THROW(MC::GetMessageCatalog(CatalogID("app:msgs"), en),
                     MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::openCatalog(resource_core::BaseCatalogID("app:msgs"), en),
                     MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::get_message(fl::i18n::MessageID("app:msgs:greet"), en),
                     MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::get_default_locale_message(greet), MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::set_additional_resource_locations({main}),
                     MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::remove_additional_resource_location(main),
                     MC::MessageCatalogNotInitialized);
        EXPECT_THROW(MC::remove_additional_resource_location(u""), MC::InvalidPathSupplied);
        auto const none = fl::i18n::getMessageIdCompletions(u"app:msgs:");
        EXPECT_TRUE(none.completions.empty());
        EXPECT_EQ(none.start_offset, 0);
        EXPECT_THROW(MC::MessageCatalogInit(std::vector<ustring>{}),
                     MC::MessageCatalogIncorrectRoot);
        EXPECT_THROW(MC::MessageCatalogInit(tree.text("nowhere")), MC::MessageCatalogIncorrectRoot);
    }
    MC::FlushCatalogFromCache(CatalogID("app:msgs"));
    EXPECT_TRUE(MC::MessageCatalogInit(main));
    EXPECT_EQ(MC::get_default_locale_message(greet), u"Hello");
}

}  // namespace
