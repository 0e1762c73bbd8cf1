#ifndef FL_TESTS_FILESYSTEM_TEMP_DIRECTORY_FIXTURE_HPP
#define FL_TESTS_FILESYSTEM_TEMP_DIRECTORY_FIXTURE_HPP

#include <fl/i18n/ustring.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "filesystem/path_test_support.hpp"
#include "filesystem/streams/scratch_directory.hpp"

namespace fstest {

// A fresh directory per test, removed with everything in it afterwards. Checks go through
// std::filesystem, independent of the code under test.
class temp_directory_test : public ::testing::Test {
protected:
    std::string bytes(std::string const& relative) const { return root_ + "/" + relative; }
    fl::i18n::ustring at(std::string const& relative) const { return u(bytes(relative)); }

    void write_file(std::string const& relative, std::string const& content = "x") const {
        scratch_.write(relative, content);
    }

    scratch_directory const scratch_{"fs"};
    std::string const root_ = scratch_.bytes();
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
