#ifndef FL_TESTS_FILESYSTEM_TEMP_DIRECTORY_FIXTURE_HPP
#define FL_TESTS_FILESYSTEM_TEMP_DIRECTORY_FIXTURE_HPP

#include <fl/i18n/ustring.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "filesystem/path_test_support.hpp"

namespace fstest {

// A fresh directory per test under the build tree's scratch area, removed with everything in
// it afterwards. Checks go through std::filesystem, independent of the code under test.
class temp_directory_test : public ::testing::Test {
protected:
    void SetUp() override {
        char const* scratch = std::getenv("OVI18N_TEST_TMP");
        std::filesystem::path const base = scratch != nullptr
                                               ? std::filesystem::path(scratch)
                                               : std::filesystem::temp_directory_path();
        std::filesystem::create_directories(base);
        std::string pattern = (base / "fs-XXXXXX").string();
        ASSERT_NE(::mkdtemp(&pattern[0]), nullptr);
        root_ = pattern;
    }

    void TearDown() override {
        std::error_code ignored;
        std::filesystem::permissions(root_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
        // Permission tests may leave directories closed; open them again before removal.
        for (auto it = std::filesystem::recursive_directory_iterator(root_, ignored);
             it != std::filesystem::recursive_directory_iterator(); it.increment(ignored)) {
            if (it->is_directory(ignored) && !it->is_symlink(ignored)) {
                std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                             std::filesystem::perm_options::add, ignored);
            }
        }
        std::filesystem::remove_all(root_, ignored);
        EXPECT_FALSE(std::filesystem::exists(root_));
    }

    std::string bytes(std::string const& relative) const { return root_ + "/" + relative; }
    fl::i18n::ustring at(std::string const& relative) const { return u(bytes(relative)); }

    void write_file(std::string const& relative, std::string const& content = "x") const {
        std::ofstream(bytes(relative), std::ios::binary) << content;
    }

    std::string root_;
};

inline std::string read_all(std::FILE* file) {
    std::string content;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
        content += static_cast<char>(c);
    }
    return content;
}

}  // namespace fstest

#endif
