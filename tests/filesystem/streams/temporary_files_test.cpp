#include <fl/filesystem/temporary_files.hpp>

#include "filesystem/streams/name_model.hpp"
#include "filesystem/temp_directory_fixture.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

namespace {

using fl::i18n::ustring;

std::string narrow(ustring const& text) {
    return std::string(text.begin(), text.end());
}

// Whether name is head, a random part and tail.
bool fits(std::string const& name, std::string const& head, std::string const& tail) {
    std::string const random_model = "xxxx-xxxx-xxxx-xxxx";
    std::size_t const random_size = random_model.size();
    return name.size() == head.size() + random_size + tail.size() && name.rfind(head, 0) == 0 &&
           fits_model(name.substr(head.size(), random_size), random_model) &&
           name.compare(name.size() - tail.size(), tail.size(), tail) == 0;
}

TEST(Tmpnam, NameIsDirectoryPrefixRandomAndSuffix) {
    std::string const saved = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
    ::setenv("HOME", "/home/someone", 1);
    struct Case {
        ustring directory, prefix, suffix;
        std::string head, tail;
    };
    Case const cases[] = {
        {u"/d/", u"p", u"txt", "/d/p", ".txt"},
        {u"/d", u"p", u".txt", "/d/p", ".txt"},
        {u"/d//", u"", u"", "/d/", ""},
        {u"/", u"p", u"", "/p", ""},
        {u"//", u"p", u"x.y", "/p", ".x.y"},
        {u"rel//dir", u"p-", u"..", "rel/dir/p-", ".."},
        {u"~/t", u"p", u"", "/home/someone/t/p", ""},
    };
    for (Case const& c : cases) {
        std::string const name = narrow(fl::filesystem::tmpnam(c.directory, c.prefix, c.suffix));
        EXPECT_TRUE(fits(name, c.head, c.tail)) << name;
    }
    ::setenv("HOME", saved.c_str(), 1);
}

// The default directory is checked by the temp directory scenarios.
TEST(Tmpnam, NamesDiffer) {
    std::set<ustring> names;
    for (int i = 0; i < 50; ++i) {
        names.insert(fl::filesystem::tmpnam(u"/d", u"", u""));
    }
    EXPECT_EQ(names.size(), 50u);
}

class Tmpfile : public fstest::temp_directory_test {};

TEST_F(Tmpfile, CreatesAnOpenFileUnderAFreshName) {
    ustring name = u"stale";
    std::FILE* const file = fl::filesystem::tmpfile(name, fstest::u(root_), u"t-", u"dat");
    ASSERT_NE(file, nullptr);
    std::string const made = narrow(name);
    EXPECT_TRUE(fits(made, bytes("t-"), ".dat")) << made;

    // Opened for update, and left behind on close.
    EXPECT_EQ(std::fputs("written", file), 1);
    std::rewind(file);
    EXPECT_EQ(fstest::read_all(file), "written");
    std::fclose(file);
    EXPECT_TRUE(std::filesystem::is_regular_file(made));
}

TEST_F(Tmpfile, FailureLeavesNoTrace) {
    write_file("plain", "");
    for (ustring const& directory : {at("missing"), at("plain")}) {
        ustring name = u"stale";
        errno = EIO;
        EXPECT_EQ(fl::filesystem::tmpfile(name, directory, u"p", u""), nullptr);
        EXPECT_EQ(errno, 0);
        EXPECT_TRUE(name.empty());
    }
}

}  // namespace
