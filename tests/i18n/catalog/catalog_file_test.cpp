#include "i18n/catalog/catalog_text_trim.hpp"
#include "i18n/catalog/expat_file_parser.hpp"
#include "i18n/catalog/message_catalog_impl.hpp"
#include "i18n/catalog/xml_catalog_data_store.hpp"

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>
#include <unicode/unistr.h>
#include <boost/make_shared.hpp>

#include <memory>
#include <sstream>
#include <vector>

using fl::i18n::MessageCatalog;
using fl::i18n::MessageCatalogImpl;

namespace {

class CatalogFileTest : public ::testing::Test {
protected:
    std::unique_ptr<MessageCatalogImpl> load(std::string const& content) {
        dir_.write("cat.xml", content);
        return std::make_unique<MessageCatalogImpl>(
            "a:b", fl::filesystem::upath(dir_.text("cat.xml")), "en_US");
    }
    // The text of key in a catalog made of the given entries, as UTF-8.
    std::string text_of(std::string const& entries, std::string const& key = "k") {
        std::string utf8;
        auto const text = load("<rsccat><message>\n" + entries + "\n</message></rsccat>\n")
                              ->get_message_text(key);
        icu::UnicodeString(text.data(), static_cast<int32_t>(text.size())).toUTF8String(utf8);
        return utf8;
    }
    // A missing file (content null) fails with the same words as a refused one.
    void expect_load_failure(char const* content) {
        try {
            content != nullptr ? load(content)
                               : std::make_unique<MessageCatalogImpl>(
                                     "a:b", fl::filesystem::upath(dir_.text("none.xml")), "en_US");
            ADD_FAILURE() << (content != nullptr ? content : "no file");
        } catch (MessageCatalog::MessageCatalogLoadFailed const& e) {
            EXPECT_STREQ(e.what(),
                         "Message Catalog a:b was not loaded from the file. Please check file "
                         "location, format or contents");
        }
    }

    scratch_directory dir_{"catalog_file"};
};

TEST_F(CatalogFileTest, LinesAreTrimmedAndJoinedWithOneSpace) {
    struct {
        char const* entry;
        char const* text;
    } const cases[] = {
        {"<entry key=\"k\">  one  </entry>", "one"},
        {"<entry key=\"k\">one\n\t two \r\n three</entry>", "one two three"},
        {"<entry key=\"k\">one\r\n   \r\ntwo</entry>", "one  two"},  // a line of blanks
        {"<entry key=\"k\">one\n\ntwo</entry>", "one two"},          // an empty line: no text
        {"<entry key=\"k\">a &amp; b &lt;c&gt;</entry>", "a & b <c>"},
        {"<entry key=\"k\">\\u0041\\n</entry>", "A\n"},
        {"<entry key=\"k\">bad \\u00</entry>", ""},
        {"<entry key=\"k\">first</entry><entry key=\"k\">second</entry>", "first"},
        {"  <entry key=\"x\">skip</entry>between<entry key=\"k\">kept</entry>", "kept"},
        {"<entry key=\"k\">caf\xc3\xa9 \xe6\x97\xa5\xe6\x9c\xac</entry>",
         "caf\xc3\xa9 \xe6\x97\xa5\xe6\x9c\xac"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(text_of(c.entry), c.text) << c.entry;
    }
}

TEST_F(CatalogFileTest, TextIsReadAsUtf8WhateverTheDeclarationSays) {
    auto const catalog = load(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
        "<rsccat version=\"1\" locale=\"fr\"><message><entry key=\"k\">\xc3\xa9t\xc3\xa9</entry>"
        "</message></rsccat>");
    EXPECT_EQ(catalog->get_message_text("k"), u"\u00e9t\u00e9");
}

TEST_F(CatalogFileTest, MarkupAcrossLinesIsJoinedWithoutSeparator) {
    EXPECT_EQ(text_of("<entry \nkey=\"k\">x</entry>"), "x");
    expect_load_failure("<rsccat><message><entry\nkey=\"k\">x</entry></message></rsccat>\n");
}

TEST_F(CatalogFileTest, AcceptedDocuments) {
    EXPECT_TRUE(load("")->get_message_keys().empty());
    // Only a last line without a newline is parsed as final, so these pass unclosed.
    EXPECT_TRUE(load("<?xml version=\"1.0\"?>\n")->get_message_keys().empty());
    EXPECT_TRUE(load("<rsccat><message><entry key=\"k\">open\n")->get_message_keys().empty());
    // An unknown attribute's value is read as a name by the walk.
    EXPECT_TRUE(
        load("<rsccat x=\"y\" version=\"2\"><message/></rsccat>")->get_message_keys().empty());
}

TEST_F(CatalogFileTest, RefusedDocuments) {
    for (char const* content : std::initializer_list<char const*>{
             "<rsccat><message><entry key=\"k\">open",  // final line, unclosed
             "<rsccat><message><entry key=\"k\">a <b>bold</b></entry></message></rsccat>",
             "<rsccat><message><entry>no key</entry></message></rsccat>",
             "<rsccat><message/><message/></rsccat>",
             // The inner entry is let in, but the outer one then ends without a key.
             "<rsccat><message><entry key=\"k\">a<entry>b</entry></entry></message></rsccat>",
             "<rsccat><entry key=\"k\">x</entry></rsccat>",
             "<message><entry key=\"k\">x</entry></message>", "<rsccat><rsccat/></rsccat>",
             "<RSCCAT><message/></RSCCAT>", "<rsccat x=\"version\"><message/></rsccat>",
             "<rsccat><message><entry key=\"k\">x</entry></message></rsccat>\n<p>",
             "<rsccat><message><entry key=\"k\">\xff</entry></message></rsccat>",
             nullptr,  // no file
         }) {
        expect_load_failure(content);
    }
}

TEST(CatalogTextTrimTest, FormFeedIsNoBlank) {
    std::string text = " \t\v\r\n\fx\f\n\r\v\t ";
    fl::i18n::catalog::trim_catalog_text(text);
    EXPECT_EQ(text, "\fx\f");
}

// The store converts well-formed UTF-8 without a converter and skips unescape() without a
// backslash; it must still give exactly what a "UTF-8" converter and unescape() give.
TEST(XmlCatalogDataStoreTest, StoredTextEqualsConverterThenUnescape) {
    fl::i18n::XMLCatalogDataStore store;
    std::vector<std::string> const texts{
        "plain",        "caf\xc3\xa9 \xf0\x9f\x98\x80", "\\u0041\\t", "bad \\u00",
        "a\xff\xfe b",  "\xed\xa0\x80 surrogate",       "\xc3",       "",
        "\xe6\x97\\x41"};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        store.add_entry(std::to_string(i), texts[i]);
        icu::UnicodeString const expected =
            icu::UnicodeString(texts[i].data(), static_cast<int32_t>(texts[i].size()), "UTF-8")
                .unescape();
        EXPECT_EQ(*store.find(std::to_string(i)), expected) << texts[i];
    }
}

TEST_F(CatalogFileTest, LookupAndFormattingOfALoadedCatalog) {
    auto const catalog = load(
        "<rsccat><message><entry key=\"k\">{0} of {1}</entry><entry key=\"two\">x</entry>"
        "</message></rsccat>");
    EXPECT_EQ(catalog->get_message_keys().size(), 2U);
    try {
        catalog->get_message_text("nope");
        FAIL();
    } catch (MessageCatalog::MessageNotFound const& e) {
        EXPECT_STREQ(e.what(), "Message Key nope was not found in the catalog a:b");
    }
    resource_core::ArgList const args{3L, std::string("four")};
    EXPECT_EQ(catalog->format_message(resource_core::BaseMsgID("a:b", "k", args)), u"3 of four");
    EXPECT_THROW(catalog->format_message(resource_core::BaseMsgID("a:c", "k", args)),
                 MessageCatalog::MessageNotFound);
}

// A handler whose exception must come out of parse() and not through the XML parser.
struct throwing_handler : fl::i18n::ExpatEventHandler {
    throwing_handler() : ExpatEventHandler("UTF-8") {}
    bool start_element(char const*, char const**) override { throw std::runtime_error("boom"); }
    bool character_data(char const*, int, bool) override { return true; }
    bool end_element(char const*) override {
        ++ends;
        return true;
    }
    int ends = 0;
};

TEST(ExpatFileParserTest, HandlerExceptionIsRethrownAfterTheParserReturns) {
    auto const handler = boost::make_shared<throwing_handler>();
    fl::i18n::ExpatFileParser parser(fl::filesystem::upath(), handler);
    std::istringstream input("<a/><b/>");
    EXPECT_THROW(parser.parse(input), std::runtime_error);
    EXPECT_EQ(handler->ends, 0);
    EXPECT_FALSE(handler->parsing_ok());
}

}  // namespace
