#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "i18n/catalog/catalog_map.hpp"

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

namespace {

using fl::filesystem::upath;
using fl::i18n::ustring;
using names = std::set<ustring>;

TEST(CatalogFilePattern, PlacesTheLocaleAfterTheComponent) {
    for (auto const& [id, pattern] : {std::pair<char const*, ustring>{"a", u""},
                                      {"a:b:", u""},
                                      {"", u""},
                                      {"a:b", u"a/%S/b.xml"},
                                      {"a:b:c:d", u"a/%S/b/c/d.xml"}}) {
        EXPECT_EQ(fl::i18n::catalog_file_pattern(id), pattern) << id;
    }
}

class CatalogTreeTest : public testing::Test {
protected:
    void make(std::string const& file, std::string const& content = "") {
        std::filesystem::create_directories(std::filesystem::path(dir_.bytes(file)).parent_path());
        std::ofstream(dir_.bytes(file)) << content;
    }
    // A map under root r listing the keys.
    // The resource root must be there for the map tree to be reached through "..".
    void map(std::string const& r, std::string const& dir, std::string const& entries) {
        std::filesystem::create_directories(dir_.bytes(r + "/resources"));
        make(r + "/derived/share/resources/" + dir + "/catalog_map.xml",
             "<MessageCatalogMap>" + entries + "</MessageCatalogMap>\n");
    }
    names collect(std::vector<std::string> const& roots, ustring const& prefix) {
        std::vector<upath> paths;
        for (auto const& r : roots) {
            paths.emplace_back(dir_.text(r + "/resources"));
        }
        auto const found = fl::i18n::collect_catalog_names(paths, prefix);
        return names(found->begin(), found->end());
    }

    scratch_directory dir_{"catalog_map"};
};

TEST_F(CatalogTreeTest, ListsCatalogsAndFindsMaps) {
    // A directory called catalog_map.xml is taken as a map and not looked into.
    for (char const* f : {"t/b/c.xml", "t/b/d/e.xml", "t/f.xml", "t/g.txt",
                          "t/m/catalog_map.xml/x/catalog_map.xml", "t/m/n/catalog_map.xml"}) {
        make(f);
    }
    std::filesystem::create_directory_symlink(dir_.bytes("t/m/n"), dir_.bytes("t/link"));
    auto listed = fl::i18n::list_catalog_names(upath(dir_.text("t/b")));
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(listed, (std::vector<std::string>{":c", ":d:e"}));
    EXPECT_EQ(fl::i18n::list_catalog_names(upath(dir_.text("t"))).size(), 5u);

    std::vector<upath> maps;
    fl::i18n::find_catalog_maps(upath(dir_.text("t")), maps);
    fl::i18n::find_catalog_maps(upath(), maps);
    std::set<ustring> texts;
    for (auto const& m : maps) {
        texts.insert(m.pathname());
    }
    EXPECT_EQ(texts, (names{dir_.text("t/m/catalog_map.xml"), dir_.text("t/m/n/catalog_map.xml"),
                            dir_.text("t/link/catalog_map.xml")}));

    make("t/caf\xc3\xa9.xml");
    EXPECT_THROW(fl::i18n::list_catalog_names(upath(dir_.text("t"))),
                 fl::i18n::CvtInvalidCharacter);
}

TEST_F(CatalogTreeTest, CollectsTheNamesOneLevelBelowThePrefix) {
    map("r", "a",
        R"(<entry key="a:b:c:k1"/><entry key="a:b:d"/><entry key="a:x:y"/>)"
        R"(<entry key="z:q"/><entry key="a:b:c:m:n">text</entry><entry key="a:b:c"/>)");
    map("r", "a/b/sub", R"(<entry key="a:b:c:below"/><entry key="a:s:k"/>)");
    map("r", "p", "<entry key=\"p:one\"/>\n<bad/><entry key=\"p:two\"/>");
    make("r/resources/a/en/c.xml");
    make("r/resources/a:more");
    make("r/resources/nomap/en/c.xml");
    map("r2", "a", R"(<entry key="a:other"/>)");
    map("r3", "u", "<entry key=\"u:caf\xc3\xa9\"/>");

    struct {
        std::vector<std::string> roots;
        ustring prefix;
        names expected;
    } const cases[] = {
        {{"r"}, u"a:b:c", {u"k1", u"m"}},  // upward to a: that map alone
        {{"r"}, u"a:b", {u"c", u"d"}},
        {{"r"}, u"a", {u"b", u"x", u"s"}},  // a's map brings those below it
        {{"r", "r2", "none"}, u"a", {u"b", u"x", u"s", u"other"}},
        {{"r"}, u"p", {u"one"}},  // a broken map gives what came before
        {{"r"}, u"q", {}},
        {{"r", "none"}, u"", {u"a", u"a:more"}},  // nomap has catalogs but no map
    };
    for (auto const& c : cases) {
        EXPECT_EQ(collect(c.roots, c.prefix), c.expected) << c.roots.size() << " roots";
    }
    EXPECT_THROW(collect({"r3"}, u"u"), fl::i18n::CvtInvalidCharacter);
}

}  // namespace
