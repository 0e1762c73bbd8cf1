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
#include <functional>

namespace {

using fl::i18n::CatalogID;
using fl::i18n::MessageCatalog;
using fl::i18n::MessageID;
using fl::i18n::OvLocale;
using fl::i18n::ustring;

class CatalogServiceTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        tree = new catalog_tree("catalog_service");
        tree->put_catalog(
            "main/resources/app/en/msgs.xml",
            {{"greet", "Hello"}, {"only_en", "English only"}, {"files", "{0} has {1} files"}});
        tree->put_catalog("main/resources/app/de/msgs.xml",
                          {{"greet", "Hallo"}, {"files", "{0} hat {1} Dateien"}});
        tree->put_catalog("main/resources/app/en/sub/deep.xml", {{"k1", "one"}, {"k2", "two"}});
        tree->put_catalog("main/resources/VELMOR/en/legacy_two_part.xml", {{"old", "Old"}});
        tree->put_catalog("main/resources/nomap/en/x.xml", {{"k", "v"}});
        tree->put("main/resources/app/en/broken.xml", "<rsccat><message><entry key=\"a\">\n");
        tree->put_map("main/derived/share/resources/app/catalog_map.xml",
                      {"app:msgs:greet", "app:msgs:only_en", "app:sub:deep:k1"});
        tree->put_map("main/derived/share/resources/VELMOR/catalog_map.xml",
                      {"VELMOR:legacy_two_part:old"});
        tree->put_catalog("extra/resources/addon/en/extra.xml", {{"e", "Extra"}});
        tree->put_catalog("bad/resources/1bad/en/x.xml", {{"k", "v"}});
        tree->put_catalog("gone/resources/addon/en/extra.xml", {{"e", "Gone"}});
    }
    static ustring root(std::string const& name) { return tree->text(name); }
    static boost::shared_ptr<OvLocale> locale(std::string const& name) {
        return OvLocale::createLocale(name);
    }
    static catalog_tree* tree;
};
catalog_tree* CatalogServiceTest::tree = nullptr;

TEST_F(CatalogServiceTest, InitKeepsTheGoodRootsAndAnswersLaterCalls) {
    EXPECT_THROW(MessageCatalog::MessageCatalogInit(std::vector<ustring>{}),
                 MessageCatalog::MessageCatalogIncorrectRoot);
    // A root without a resources directory counts as bad.
    EXPECT_THROW(MessageCatalog::MessageCatalogInit(root("main/resources")),
                 MessageCatalog::MessageCatalogIncorrectRoot);
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit({root("nowhere"), root("main")}));
    ASSERT_EQ(fl::i18n::catalog_resource_roots().size(), 1u);
    EXPECT_EQ(fl::i18n::catalog_resource_roots()[0].pathname(), root("main/resources"));
    EXPECT_TRUE(MessageCatalog::MessageCatalogInit(root("main")));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(root("extra")));
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(std::vector<ustring>{}));
}

TEST_F(CatalogServiceTest, LocalesFallBackToTheirLanguageThenEnglish) {
    struct {
        char const* locale;
        char const* catalog;
        char const* found;
    } const cases[] = {
        {"de_CH", "app:msgs", "de"}, {"de_DE", "app:msgs", "de"},     {"en_US", "app:msgs", "en"},
        {"ja_JP", "app:msgs", "en"}, {"de_CH", "app:sub:deep", "en"},
    };
    for (auto const& c : cases) {
        auto const catalog =
            MessageCatalog::GetMessageCatalog(CatalogID(c.catalog), *locale(c.locale));
        EXPECT_EQ(catalog->get_catalog_locale(), c.found) << c.locale << " " << c.catalog;
        EXPECT_EQ(catalog->get_catalog_name(), c.catalog);
    }
    EXPECT_THROW(MessageCatalog::GetMessageCatalog(CatalogID("app:none"), *locale("de_CH")),
                 MessageCatalog::MessageCatalogLoadFailed);
}

TEST_F(CatalogServiceTest, OneObjectPerFileWhateverLocaleAsked) {
    CatalogID const id("app:msgs");
    auto const asked = MessageCatalog::GetMessageCatalog(id, *locale("de_CH"));
    EXPECT_EQ(MessageCatalog::GetMessageCatalog(id, *locale("de")), asked);
    EXPECT_EQ(MessageCatalog::GetMessageCatalog(id, *locale("de_AT")), asked);
    EXPECT_EQ(
        MessageCatalog::openCatalog(resource_core::BaseCatalogID("app:msgs"), *locale("de_CH")),
        asked);
    EXPECT_NE(MessageCatalog::GetMessageCatalog(id, *locale("en_US")), asked);
}

TEST_F(CatalogServiceTest, MessagesRawFormattedAndWithoutPerMessageFallback) {
    auto const de = locale("de_CH");
    EXPECT_EQ(MessageCatalog::get_message(MessageID("app:msgs:greet"), *de), u"Hallo");
    EXPECT_EQ(MessageCatalog::get_message(MessageID("app:msgs:files"), *de),
              u"{0} hat {1} Dateien");
    resource_core::BaseMsgID const files("app:msgs", "files", {std::string("x"), 1234L});
    EXPECT_EQ(MessageCatalog::get_message(files, *de), u"x hat 1,234 Dateien");
    EXPECT_EQ(MessageCatalog::get_default_locale_message(files), u"x has 1,234 files");
    // Present in English only: the German catalog found is the answer.
    EXPECT_THROW(MessageCatalog::get_message(MessageID("app:msgs:only_en"), *de),
                 MessageCatalog::MessageNotFound);
    EXPECT_THROW(
        MessageCatalog::get_message(resource_core::BaseMsgID("1app:msgs", "greet", {}), *de),
        CatalogID::badCatalogIDException);
    EXPECT_THROW(MessageCatalog::get_message(MessageID(CatalogID(), "k"), *de),
                 CatalogID::badCatalogIDException);
}

TEST_F(CatalogServiceTest, AFailedLoadIsTriedAgainAndAFlushReloads) {
    CatalogID const id("app:broken");
    auto const en = locale("en_US");
    EXPECT_THROW(MessageCatalog::GetMessageCatalog(id, *en),
                 MessageCatalog::MessageCatalogLoadFailed);
    tree->put_catalog("main/resources/app/en/broken.xml", {{"a", "fixed"}});
    auto const first = MessageCatalog::GetMessageCatalog(id, *en);
    EXPECT_EQ(first->get_message_text("a"), u"fixed");

    tree->put_catalog("main/resources/app/en/broken.xml", {{"a", "changed"}});
    EXPECT_EQ(MessageCatalog::GetMessageCatalog(id, *en), first);
    MessageCatalog::FlushCatalogFromCache(CatalogID("app:broken"));
    auto const second = MessageCatalog::GetMessageCatalog(id, *en);
    EXPECT_NE(second, first);
    EXPECT_EQ(first->get_message_text("a"), u"fixed");
    EXPECT_EQ(second->get_message_text("a"), u"changed");
}

TEST_F(CatalogServiceTest, AdditionalLocationsAreAllOrNothingAndRemovedTogether) {
    CatalogID const id("addon:extra");
    auto const en = locale("en_US");
    EXPECT_THROW(MessageCatalog::set_additional_resource_locations({}),
                 MessageCatalog::MessageCatalogIncorrectRoot);
    EXPECT_THROW(
        MessageCatalog::set_additional_resource_locations({root("extra"), root("nowhere")}),
        MessageCatalog::MessageCatalogIncorrectRoot);
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 1u);
    MessageCatalog::set_additional_resource_locations({root("extra")});
    MessageCatalog::set_additional_resource_locations({root("extra")});
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 3u);
    EXPECT_FALSE(MessageCatalog::MessageCatalogInit(root("main")));

    auto const held = MessageCatalog::GetMessageCatalog(id, *locale("de_CH"));
    EXPECT_EQ(MessageCatalog::GetMessageCatalog(id, *en), held);
    MessageCatalog::remove_additional_resource_location(root("extra"));
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 1u);
    EXPECT_EQ(held->get_message_text("e"), u"Extra");
    // Flushed in both locales: nothing is left to load from.
    EXPECT_THROW(MessageCatalog::GetMessageCatalog(id, *en),
                 MessageCatalog::MessageCatalogLoadFailed);
    EXPECT_THROW(MessageCatalog::GetMessageCatalog(id, *locale("de_CH")),
                 MessageCatalog::MessageCatalogLoadFailed);
}

TEST_F(CatalogServiceTest, RemovalFailures) {
    MessageCatalog::set_additional_resource_locations({root("bad"), root("gone")});
    std::filesystem::remove_all(tree->bytes("gone/resources"));
    struct {
        ustring path;
        std::function<void(std::exception const&)> check;
    } const cases[] = {
        {ustring(),
         [](auto const& e) {
             EXPECT_TRUE(dynamic_cast<MessageCatalog::InvalidPathSupplied const*>(&e));
         }},
        {root("main"),
         [](auto const& e) {
             EXPECT_TRUE(dynamic_cast<MessageCatalog::ResourcePathNotFound const*>(&e));
         }},
        {root("gone"),
         [](auto const& e) {
             EXPECT_TRUE(dynamic_cast<MessageCatalog::ResDirNotPresent const*>(&e));
         }},
        {root("bad"),
         [](auto const& e) {
             EXPECT_STREQ(e.what(), "Unknown error while removal of path! Error : Bad Catalog ID");
         }},
    };
    for (auto const& c : cases) {
        try {
            MessageCatalog::remove_additional_resource_location(c.path);
            ADD_FAILURE() << "no failure";
        } catch (std::exception const& e) {
            c.check(e);
        }
    }
    // A failed removal keeps the location.
    EXPECT_EQ(fl::i18n::catalog_resource_roots().size(), 3u);
}

std::vector<ustring> completions(ustring const& input, int offset) {
    auto result = fl::i18n::getMessageIdCompletions(input);
    EXPECT_EQ(result.start_offset, offset) << std::string(input.begin(), input.end());
    std::sort(result.completions.begin(), result.completions.end());
    return result.completions;
}

TEST_F(CatalogServiceTest, CompletionAtEachLevel) {
    using list = std::vector<ustring>;
    EXPECT_EQ(completions(u"", 0), (list{u"VELMOR:", u"app:"}));
    EXPECT_EQ(completions(u"vel", 0), (list{u"VELMOR:"}));
    EXPECT_EQ(completions(u"app:", 4), (list{u"msgs:", u"sub:"}));
    // "app" is no catalog: names only.
    EXPECT_EQ(completions(u"app:S", 4), (list{u"sub:"}));
    EXPECT_EQ(completions(u"app:sub:", 8), (list{u"deep:"}));
    EXPECT_EQ(completions(u"app:msgs:", 9),
              (list{u"files", u"greet", u"greet:", u"only_en", u"only_en:"}));
    EXPECT_EQ(completions(u"app:msgs:G", 9), (list{u"greet", u"greet:"}));
    EXPECT_EQ(completions(u"app:sub:deep:", 13), (list{u"k1", u"k1:", u"k2"}));
    // The legacy catalog is reached by the bare product name, and not offered below it.
    EXPECT_EQ(completions(u"VELMOR:", 7), (list{u"old"}));
    EXPECT_EQ(completions(u"velmor:O", 7), (list{}));
    // A catalog part that is not ASCII fails the whole completion.
    EXPECT_EQ(completions(u"\u00e9:", 0), (list{}));
}

}  // namespace
