#include <fl/filesystem/temporary_files.hpp>

#include "filesystem/temp_directory_fixture.hpp"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// The random part of temporary names, replaced for this test program so that it can plant
// files under the names that come next. Names beyond the script are fresh.
namespace {
std::deque<std::string> scripted_names;
int fresh_names = 0;
}  // namespace

namespace boost {
namespace filesystem {
namespace detail {
path unique_path(path const&, system::error_code*) {
    if (scripted_names.empty()) {
        return path("ffff-ffff-ffff-" + std::to_string(1000 + fresh_names++));
    }
    std::string const next = scripted_names.front();
    scripted_names.pop_front();
    return path(next);
}
}  // namespace detail
}  // namespace filesystem
}  // namespace boost

namespace {

std::string content_of(std::string const& file) {
    std::ifstream in(file);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

class TmpfileCollision : public fstest::temp_directory_test {};

// A name already taken, by a file or by a link to one elsewhere, is never opened: neither is
// truncated or written through, and a fresh name is taken instead.
TEST_F(TmpfileCollision, TakenNamesAreSkippedUntouched) {
    write_file("victim", "keep");
    write_file("p-taken", "keep");
    std::filesystem::create_symlink(bytes("victim"), bytes("p-link"));
    scripted_names = {"probe", "link", "taken"};

    fl::i18n::ustring name;
    std::FILE* const file = fl::filesystem::tmpfile(name, fstest::u(root_), u"p-", u"");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(std::fputs("new", file), 1);
    std::fclose(file);
    EXPECT_EQ(std::string(name.begin(), name.end()), bytes("p-ffff-ffff-ffff-1000"));
    EXPECT_EQ(content_of(bytes("victim")), "keep");
    EXPECT_EQ(content_of(bytes("p-taken")), "keep");
    EXPECT_TRUE(std::filesystem::is_symlink(bytes("p-link")));
}

}  // namespace
