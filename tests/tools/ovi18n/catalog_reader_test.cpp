// The tool can't call the library's catalog loader, so it reads catalogs by the same rules; these
// files must be accepted or refused alike, and give the same texts.
#include "catalog_file_reader.hpp"

#include "i18n/catalog/message_catalog_impl.hpp"

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <sstream>

namespace {

using ovi18n_tool::read_catalog;

std::string const head = "<rsccat><message>\n";
std::string const tail = "\n</message></rsccat>\n";

TEST(CatalogReaderTest, AcceptsAndRefusesWhatTheLoaderDoes) {
    scratch_directory dir{"catalog_reader"};
    std::string const files[] = {
        "",
        "<?xml version=\"1.0\"?>\n",
        "<rsccat><message><entry key=\"k\">open\n",
        "<rsccat><message><entry key=\"k\">open",
        "<rsccat x=\"y\" version=\"2\"><message/></rsccat>",
        "<rsccat x=\"version\"><message/></rsccat>",
        "<rsccat version=\"1\" locale=\"version\"><message/></rsccat>",
        head + "<entry key=\"k\">a <b>bold</b></entry>" + tail,
        head + "<entry>no key</entry>" + tail,
        head + "<entry key=\"\">empty key</entry>" + tail,
        "<rsccat><message/><message/></rsccat>",
        head + "<entry key=\"k\">a<entry>b</entry></entry>" + tail,
        head + "<entry key=\"k\">a</entry><entry key=\"j\">b<entry key=\"i\">c</entry></entry>" +
            tail,
        "<rsccat><entry key=\"k\">x</entry></rsccat>",
        "<message><entry key=\"k\">x</entry></message>",
        "<rsccat><rsccat/></rsccat>",
        "<RSCCAT><message/></RSCCAT>",
        head + "<entry key=\"k\">x</entry>" + tail + "<p>",
        head + "<entry key=\"k\">\xff</entry>" + tail,
        head + "<entry \nkey=\"k\">x</entry>" + tail,
        "<rsccat><message><entry\nkey=\"k\">x</entry></message></rsccat>\n",
        head + "<entry key=\"k\">  one \n\t two \r\n   \r\n\nthree</entry>" + tail,
        head + "<entry key=\"k\">a &amp; b\n&lt;c&gt; \\u0041\\n</entry>" + tail,
        head + "<entry key=\"k\">bad \\u00</entry>" + tail,
        head + "  <entry key=\"k\">first</entry>between<entry key=\"k\">second</entry>" + tail,
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n" + head +
            "<entry key=\"k\">\xc3\xa9t\xc3\xa9 \xe6\x97\xa5</entry>" + tail,
        head + "<entry key=\"k\">\fx\f</entry>" + tail,
    };
    for (std::string const& content : files) {
        dir.write("cat.xml", content);
        std::unique_ptr<fl::i18n::MessageCatalogImpl> library;
        try {
            library = std::make_unique<fl::i18n::MessageCatalogImpl>(
                "a:b", fl::filesystem::upath(dir.text("cat.xml")), "en");
        } catch (fl::i18n::MessageCatalog::MessageCatalogLoadFailed const&) {
        }
        std::istringstream input(content);
        auto const tool = read_catalog(input);
        ASSERT_EQ(tool.loaded, library != nullptr) << content << "\n" << tool.error;
        if (!tool.loaded) {
            continue;
        }
        std::map<std::string, fl::i18n::ustring> first;
        for (auto const& e : tool.entries) {
            first.emplace(e.key, e.text);
        }
        EXPECT_EQ(first.size(), library->get_message_keys().size()) << content;
        for (auto const& [key, text] : first) {
            EXPECT_EQ(text, library->get_message_text(key)) << content;
        }
    }
}

TEST(CatalogReaderTest, SaysWhereAndWhyALoadFails) {
    struct {
        std::string content;
        std::size_t line, column;
        char const* reason;
    } const cases[] = {
        {head + "  <entry key=\"k\">x <b>y</b></entry>" + tail, 2, 20, "unknown element 'b'"},
        {head + "<entry key=\"k\">x</entry>\n  <entry>y</entry>" + tail, 3, 11,
         "'entry' without a 'key'"},
        {head + "<entry key=\"\xc3\xa9\">x</entry\n" + tail, 4, 1, "not well-formed"},
        {"<rsccat>\n<message>\n<entry key=\"k\">x", 3, 17, "no element found"},
        {"<rsccat x=\"locale\"/>", 1, 1, "unknown attribute of 'rsccat'"},
    };
    for (auto const& c : cases) {
        std::istringstream input(c.content);
        auto const result = read_catalog(input);
        EXPECT_FALSE(result.loaded) << c.content;
        EXPECT_EQ(result.error_at.line, c.line) << c.content;
        EXPECT_EQ(result.error_at.column, c.column) << c.content;
        EXPECT_NE(result.error.find(c.reason), std::string::npos) << result.error;
    }
}

TEST(CatalogReaderTest, EntriesKeepTheirPlaceAndAnUnclosedDocumentIsNoted) {
    std::istringstream input(head + "<entry key=\"a\">x</entry>\n  <entry key=\"b\">y</entry>\n" +
                             "<entry key=\"c\">open\n");
    auto const result = read_catalog(input);
    ASSERT_TRUE(result.loaded);
    EXPECT_TRUE(result.unclosed);
    ASSERT_EQ(result.entries.size(), 2U);
    EXPECT_EQ(result.entries[1].where.line, 3U);
    EXPECT_EQ(result.entries[1].where.column, 3U);
}

}  // namespace
