#include "i18n/catalog/message_catalog_impl.hpp"

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace {

// A loaded catalog is read by any number of threads without a lock.
TEST(CatalogThreadsTest, ConcurrentReadersOfOneCatalog) {
    scratch_directory const dir("catalog_threads");
    dir.write("c.xml",
              "<rsccat><message><entry key=\"a\">{0} and {1}'s</entry><entry key=\"b\">x</entry>"
              "</message></rsccat>\n");
    fl::i18n::MessageCatalogImpl const catalog("t:c", fl::filesystem::upath(dir.text("c.xml")),
                                               "en_US");
    resource_core::BaseMsgID const id("t:c", "a", {1L, std::string("two")});
    std::atomic<int> wrong{0};
    std::vector<std::thread> readers;
    for (int t = 0; t < 4; ++t) {
        readers.emplace_back([&] {
            for (int i = 0; i < 200; ++i) {
                wrong += catalog.get_message_text("b") != u"x";
                wrong += catalog.format_message(id) != u"1 and two's";
                wrong += catalog.get_message_keys().size() != 2;
            }
        });
    }
    for (auto& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(wrong, 0);
}

}  // namespace
