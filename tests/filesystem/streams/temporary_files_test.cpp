#include <fl/filesystem/temporary_files.hpp>

#include "filesystem/streams/name_model.hpp"
#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

namespace {

using fl::i18n::ustring;

std::string narrow(ustring const& text) {
    return std::string(text.begin(), text.end());
}

// Whether name is head, a random part and tail.
bool fits(std::string const& name, std::string const& head, std::string const& tail) {
    std::size_t const random_size = random_model().size();
    return name.size() == head.size() + random_size + tail.size() && name.rfind(head, 0) == 0 &&
           fits_model(name.substr(head.size(), random_size), random_model()) &&
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

TEST(Tmpnam, NamesDifferAndDefaultToTheTempDirectory) {
    std::set<ustring> names;
    for (int i = 0; i < 50; ++i) {
        names.insert(fl::filesystem::tmpnam(u"/d", u"", u""));
    }
    EXPECT_EQ(names.size(), 50u);

    ustring const name = fl::filesystem::tmpnam(u"", u"p", u"");
    ustring const directory = fl::filesystem::temp_directory_name() + u"/";
    EXPECT_EQ(name.compare(0, directory.size(), directory), 0) << narrow(name);
}

TEST(Tmpfile, CreatesAnOpenFileUnderAFreshName) {
    scratch_directory const scratch("tmpfile");
    ustring name = u"stale";
    std::FILE* const file = fl::filesystem::tmpfile(name, scratch.text(), u"t-", u"dat");
    ASSERT_NE(file, nullptr);
    std::string const bytes = narrow(name);
    EXPECT_TRUE(fits(bytes, scratch.bytes() + "/t-", ".dat")) << bytes;

    // Opened for update, and left behind on close.
    EXPECT_EQ(std::fputs("written", file), 1);
    std::rewind(file);
    EXPECT_EQ(read_all(file), "written");
    std::fclose(file);
    EXPECT_TRUE(std::filesystem::is_regular_file(bytes));
}

TEST(Tmpfile, FailureLeavesNoTrace) {
    scratch_directory const scratch("tmpfile-failure");
    scratch.write("plain", "");
    for (ustring const& directory : {scratch.text("missing"), scratch.text("plain")}) {
        ustring name = u"stale";
        errno = EIO;
        EXPECT_EQ(fl::filesystem::tmpfile(name, directory, u"p", u""), nullptr);
        EXPECT_EQ(errno, 0);
        EXPECT_TRUE(name.empty());
    }
}

}  // namespace
