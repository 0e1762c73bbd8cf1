#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_id.hpp>

#include <resource_core/resource_core.hpp>

#include <gtest/gtest.h>

using fl::i18n::CatalogID;
using fl::i18n::MessageID;

namespace {

struct split_case {
    char const* text;
    char const* head;  // component, or catalog of a message id
    char const* tail;  // sub-components, or key
};

TEST(CatalogIdTest, AcceptedTextsSplitAtTheFirstColon) {
    for (auto const& c :
         {split_case{"a:b", "a", "b"}, split_case{"a:b:c", "a", "b:c"},
          split_case{"_a:_1", "_a", "_1"}, split_case{"Ab9:c_D:e", "Ab9", "c_D:e"}}) {
        CatalogID const id(c.text);
        EXPECT_EQ(id.getCatalogID(), c.text);
        EXPECT_EQ(id.getComponentName(), c.head) << c.text;
        EXPECT_EQ(id.getSubComponentsNames(), c.tail) << c.text;
    }
}

TEST(CatalogIdTest, RefusedTextsThrowTheSharedWords) {
    for (char const* text : {"", "a", ":b", "a:", "a::b", "1a:b", "a:1b", "a-b:c", "a:b c",
                             "a:b\xc3\xa9", "\xc3\xa9:b"}) {
        try {
            CatalogID const id{std::string(text)};
            ADD_FAILURE() << text;
        } catch (CatalogID::badCatalogIDException const& e) {
            EXPECT_STREQ(e.what(), "Bad Catalog ID");
        }
    }
}

TEST(CatalogIdTest, SetCatalogIdChecksOnlyNewTexts) {
    CatalogID empty;
    EXPECT_THROW(empty.setCatalogID(""), CatalogID::badCatalogIDException);
    CatalogID id("a:b");
    id.setCatalogID("a:b");
    EXPECT_THROW(id.setCatalogID("a:1"), CatalogID::badCatalogIDException);
    EXPECT_EQ(id.getCatalogID(), "a:b");
    id.setCatalogID("x:y:z");
    EXPECT_EQ(id.getSubComponentsNames(), "y:z");
}

TEST(MessageIdTest, AcceptedTextsSplitAtTheLastColon) {
    for (auto const& c : {split_case{"a:b:c", "a:b", "c"}, split_case{"a:b:c:d", "a:b:c", "d"},
                          split_case{"_x:y:_9", "_x:y", "_9"}}) {
        MessageID const id(c.text);
        EXPECT_EQ(id.getCompositeID(), c.text);
        EXPECT_EQ(id.getCatalogID(), c.head) << c.text;
        EXPECT_EQ(id.getMsgKey(), c.tail) << c.text;
    }
}

TEST(MessageIdTest, RefusedTextsThrowTheSharedWords) {
    for (char const* text : {"", "a", "a:b", "a:b:1c", "a:b:", "a::c", "a:b:c-d"}) {
        try {
            MessageID const id{std::string(text)};
            ADD_FAILURE() << text;
        } catch (MessageID::badMessageIDException const& e) {
            EXPECT_STREQ(e.what(), "Bad Message ID");
        }
    }
}

TEST(MessageIdTest, KeyFromACatalogFileIsNotChecked) {
    EXPECT_EQ(MessageID(CatalogID("a:b"), "x-y z").getCompositeID(), "a:b:x-y z");
    EXPECT_EQ(MessageID(CatalogID(), "k").getCompositeID(), "::k");
    EXPECT_THROW(MessageID(CatalogID("a:b"), ""), MessageID::badMessageIDException);
}

TEST(MessageIdTest, ExtractComponentsReportsWithoutThrowing) {
    MessageID id("p:q:r");
    EXPECT_FALSE(id.extractIDComponents("nocolon"));
    EXPECT_FALSE(id.extractIDComponents("a:b"));
    EXPECT_EQ(id.getCatalogID(), "p:q");
    // The catalog part is taken before the empty key is seen.
    EXPECT_FALSE(id.extractIDComponents("a:b:"));
    EXPECT_EQ(id.getCatalogID(), "a:b");
    EXPECT_THROW(id.setCompositeMsgID("a:b"), MessageID::badMessageIDException);
    EXPECT_EQ(id.getCompositeID(), "p:q:r");
}

TEST(ResourceCoreTest, BareProductNameMapsToItsLegacyCatalog) {
    EXPECT_EQ(resource_core::makeInternalCatalogName("VELMOR"), "VELMOR:legacy_two_part");
    EXPECT_EQ(resource_core::makeInternalCatalogName("VELMOR:x"), "VELMOR:x");
    EXPECT_EQ(resource_core::makeInternalCatalogName("velmor"), "velmor");
}

}  // namespace
