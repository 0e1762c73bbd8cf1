// The message service in one process: the cases build on each other and run in order.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/catalog/message_id_completion.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_roots.hpp"
#include "i18n/catalog/catalog_tree.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::MessageID;
using fl::i18n::ustring;
using MC = fl::i18n::MessageCatalog;

catalog_tree const& tree() {
    static catalog_tree const* const made = [] {
        auto* t = new catalog_tree("catalog_service");
        t->put_catalog(
            "main/resources/app/en/msgs.xml",
            {{"greet", "Hello"}, {"only_en", "English"}, {"files", "{0} has {1} files"}});
        t->put_catalog("main/resources/app/de/msgs.xml",
                       {{"greet", "Hallo"}, {"files", "{0} hat {1} Dateien"}});
        t->put_catalog("main/resources/app/en/sub/deep.xml", {{"k1", "one"}, {"k2", "two"}});
        t->put_catalog("main/resources/VELMOR/en/legacy_two_part.xml", {{"old", "Old"}});
        t->put("main/resources/app/en/broken.xml", "<rsccat><b/></rsccat>\n");
        t->put_catalog("main/derived/share/resources/app/catalog_map.xml",
                       {{"app:msgs:greet", ""}, {"app:msgs:only_en", ""}, {"app:sub:deep:k1", ""}},
                       true);
        t->put_catalog("main/derived/share/resources/VELMOR/catalog_map.xml",
                       {{"VELMOR:legacy_two_part:old", ""}}, true);
        t->put_catalog("extra/resources/addon/en/extra.xml", {{"e", "Extra"}});
        t->put_catalog("bad/resources/1bad/en/x.xml", {{"k", "v"}});
        t->put_catalog("gone/resources/addon/en/extra.xml", {{"e", "Gone"}});
        return t;
    }();
    return *made;
}
ustring root(std::string const& name) {
    return tree().text(name);
}
boost::shared_ptr<fl::i18n::OvLocale> locale(std::string const& name) {
    return fl::i18n::OvLocale::createLocale(name);
}
std::size_t root_count() {
    return fl::i18n::catalog_resource_roots().size();
}

TEST(CatalogServiceTest, InitKeepsTheGoodRootsAndAnswersLaterCalls) {
    EXPECT_THROW(MC::MessageCatalogInit(std::vector<ustring>{}), MC::MessageCatalogIncorrectRoot);
    // A root without a resources directory counts as bad.
    EXPECT_THROW(MC::MessageCatalogInit(root("main/resources")), MC::MessageCatalogIncorrectRoot);
    EXPECT_TRUE(MC::MessageCatalogInit({root("nowhere"), root("main")}));
    ASSERT_EQ(root_count(), 1u);
    EXPECT_EQ(fl::i18n::catalog_resource_roots()[0].pathname(), root("main/resources"));
    EXPECT_TRUE(MC::MessageCatalogInit(root("main")));
    EXPECT_FALSE(MC::MessageCatalogInit(root("extra")));
    EXPECT_FALSE(MC::MessageCatalogInit(std::vector<ustring>{}));
}

TEST(CatalogServiceTest, LocalesFallBackAndShareOneObjectPerFile) {
    struct {
        char const* locale;
        char const* catalog;
        char const* found;
    } const cases[] = {{"de_CH", "app:msgs", "de"},
                       {"de", "app:msgs", "de"},
                       {"en_US", "app:msgs", "en"},
                       {"ja_JP", "app:msgs", "en"},
                       {"de_CH", "app:sub:deep", "en"}};
    for (auto const& c : cases) {
        auto const catalog = MC::GetMessageCatalog(CatalogID(c.catalog), *locale(c.locale));
        EXPECT_EQ(catalog->get_catalog_locale(), c.found) << c.locale << " " << c.catalog;
    }
    EXPECT_THROW(MC::GetMessageCatalog(CatalogID("app:none"), *locale("de_CH")),
                 MC::MessageCatalogLoadFailed);

    CatalogID const id("app:msgs");
    auto const asked = MC::GetMessageCatalog(id, *locale("de_CH"));
    EXPECT_EQ(MC::GetMessageCatalog(id, *locale("de")), asked);
    EXPECT_EQ(MC::GetMessageCatalog(id, *locale("de_AT")), asked);
    EXPECT_EQ(MC::openCatalog(resource_core::BaseCatalogID("app:msgs"), *locale("de_CH")), asked);
    EXPECT_NE(MC::GetMessageCatalog(id, *locale("en_US")), asked);
}

TEST(CatalogServiceTest, MessagesRawFormattedAndWithoutPerMessageFallback) {
    auto const de = locale("de_CH");
    EXPECT_EQ(MC::get_message(MessageID("app:msgs:greet"), *de), u"Hallo");
    EXPECT_EQ(MC::get_message(MessageID("app:msgs:files"), *de), u"{0} hat {1} Dateien");
    resource_core::BaseMsgID const files("app:msgs", "files", {std::string("x"), 1234L});
    EXPECT_EQ(MC::get_message(files, *de), u"x hat 1234 Dateien");
    EXPECT_EQ(MC::get_default_locale_message(files), u"x has 1234 files");
    // In English only: the German catalog found is the answer.
    EXPECT_THROW(MC::get_message(MessageID("app:msgs:only_en"), *de), MC::MessageNotFound);
    EXPECT_THROW(MC::get_message(resource_core::BaseMsgID("1app:msgs", "greet", {}), *de),
                 CatalogID::badCatalogIDException);
}

TEST(CatalogServiceTest, AFailedLoadIsTriedAgainAndAFlushReloads) {
    CatalogID const id("app:broken");
    auto const en = locale("en_US");
    EXPECT_THROW(MC::GetMessageCatalog(id, *en), MC::MessageCatalogLoadFailed);
    tree().put_catalog("main/resources/app/en/broken.xml", {{"a", "fixed"}});
    auto const first = MC::GetMessageCatalog(id, *en);
    tree().put_catalog("main/resources/app/en/broken.xml", {{"a", "changed"}});
    EXPECT_EQ(MC::GetMessageCatalog(id, *en), first);
    MC::FlushCatalogFromCache(id);
    auto const second = MC::GetMessageCatalog(id, *en);
    EXPECT_EQ(first->get_message_text("a"), u"fixed");
    EXPECT_EQ(second->get_message_text("a"), u"changed");
}

TEST(CatalogServiceTest, AdditionalLocationsAreAllOrNothingAndRemovedTogether) {
    CatalogID const id("addon:extra");
    EXPECT_THROW(MC::set_additional_resource_locations({}), MC::MessageCatalogIncorrectRoot);
    EXPECT_THROW(MC::set_additional_resource_locations({root("extra"), root("nowhere")}),
                 MC::MessageCatalogIncorrectRoot);
    EXPECT_EQ(root_count(), 1u);
    MC::set_additional_resource_locations({root("extra")});
    MC::set_additional_resource_locations({root("extra")});
    EXPECT_EQ(root_count(), 3u);
    EXPECT_FALSE(MC::MessageCatalogInit(root("main")));

    auto const held = MC::GetMessageCatalog(id, *locale("de_CH"));
    EXPECT_EQ(MC::GetMessageCatalog(id, *locale("en_US")), held);
    MC::remove_additional_resource_location(root("extra"));
    EXPECT_EQ(root_count(), 1u);
    EXPECT_EQ(held->get_message_text("e"), u"Extra");
    // Flushed in every locale, and nothing is left to load from.
    EXPECT_THROW(MC::GetMessageCatalog(id, *locale("de_CH")), MC::MessageCatalogLoadFailed);

    MC::set_additional_resource_locations({root("bad"), root("gone")});
    std::filesystem::remove_all(tree().bytes("gone/resources"));
    EXPECT_THROW(MC::remove_additional_resource_location(u""), MC::InvalidPathSupplied);
    EXPECT_THROW(MC::remove_additional_resource_location(root("main")), MC::ResourcePathNotFound);
    EXPECT_THROW(MC::remove_additional_resource_location(root("gone")), MC::ResDirNotPresent);
    try {
        MC::remove_additional_resource_location(root("bad"));
        ADD_FAILURE() << "a catalog with a malformed name was flushed";
    } catch (MC::ResPathRemovalUnknownError const& e) {
        EXPECT_STREQ(e.what(), "Unknown error while removal of path! Error : Bad Catalog ID");
    }
    EXPECT_EQ(root_count(), 3u);
}

std::vector<ustring> completions(ustring const& input, int offset) {
    auto result = fl::i18n::getMessageIdCompletions(input);
    EXPECT_EQ(result.start_offset, offset) << std::string(input.begin(), input.end());
    std::sort(result.completions.begin(), result.completions.end());
    return result.completions;
}

TEST(CatalogServiceTest, CompletionAtEachLevel) {
    using list = std::vector<ustring>;
    EXPECT_EQ(completions(u"", 0), (list{u"VELMOR:", u"app:"}));
    EXPECT_EQ(completions(u"vel", 0), (list{u"VELMOR:"}));
    EXPECT_EQ(completions(u"app:", 4), (list{u"msgs:", u"sub:"}));
    // "app" is no catalog: names only.
    EXPECT_EQ(completions(u"app:S", 4), (list{u"sub:"}));
    EXPECT_EQ(completions(u"app:msgs:G", 9), (list{u"greet", u"greet:"}));
    EXPECT_EQ(completions(u"app:sub:deep:", 13), (list{u"k1", u"k1:", u"k2"}));
    // The legacy catalog is reached by the bare product name, and not offered below it.
    EXPECT_EQ(completions(u"VELMOR:", 7), (list{u"old"}));
    // A catalog part that is not ASCII fails the whole completion.
    EXPECT_EQ(completions(u"\u00e9:", 0), (list{}));
}

}  // namespace
