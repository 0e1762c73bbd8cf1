#include <fl/filesystem/temporary_files.hpp>

#include "filesystem/temp_directory_fixture.hpp"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>

// The random part of temporary names, replaced in this program by a script, then by "fresh".
namespace {
std::deque<std::string> scripted_names;
}  // namespace

boost::filesystem::path boost::filesystem::detail::unique_path(path const&, system::error_code*) {
    std::string const next = scripted_names.empty() ? "fresh" : scripted_names.front();
    if (!scripted_names.empty()) {
        scripted_names.pop_front();
    }
    return path(next);
}

namespace {

class TmpfileCollision : public fstest::temp_directory_test {};

// A taken name, whether a file or a link to one elsewhere, is neither truncated nor written
// through; the next name is taken instead.
TEST_F(TmpfileCollision, TakenNamesAreSkippedUntouched) {
    write_file("victim", "keep");
    write_file("p-taken", "keep");
    std::filesystem::create_symlink(bytes("victim"), bytes("p-link"));
    scripted_names = {"probe", "link", "taken"};

    fl::i18n::ustring name;
    std::FILE* const file = fl::filesystem::tmpfile(name, fstest::u(root_), u"p-", u"");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_EQ(name, at("p-fresh"));
    EXPECT_EQ(std::filesystem::file_size(bytes("victim")), 4u);
    EXPECT_EQ(std::filesystem::file_size(bytes("p-taken")), 4u);
}

}  // namespace
