#include <fl/filesystem.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <string>

#include "filesystem/temp_directory_fixture.hpp"
#include "support/run_together.hpp"

namespace {

namespace fs = fl::filesystem;
using fl::i18n::ustring;
using fstest::u;

class FilesystemThreads : public fstest::temp_directory_test {};

// Each thread converts with its own copy of the default converter; the current directory and
// the install root are process-wide and guarded. Mismatches are counted, not asserted, inside
// the threads.
TEST_F(FilesystemThreads, ConcurrentOperationsAgree) {
    ustring const cwd = fs::get_current_path();
    std::atomic<int> mismatches{0};
    run_together(4, [&](int t) {
        ustring const own = at("t" + std::to_string(t));
        for (int i = 0; i < 200; ++i) {
            fs::create_directories(own + u"/a/b");
            mismatches += !fs::exists(fs::upath(own + u"//a/b/"));
            fs::remove_all(own);
            mismatches +=
                fs::get_install_path() != fs::get_install_path() || fs::get_current_path() != cwd;
            fs::change_current_path(cwd);
        }
    });
    EXPECT_EQ(mismatches.load(), 0);
}

// Distinct iterators over one directory are independent; comparison has no shared state.
TEST_F(FilesystemThreads, DistinctIteratorsAndComparisonsAgree) {
    for (int i = 0; i < 20; ++i) {
        write_file("f" + std::to_string(i) + (i % 2 ? ".xml" : ".txt"));
    }
    std::atomic<int> mismatches{0};
    run_together(4, [&](int) {
        for (int i = 0; i < 100; ++i) {
            int count = 0;
            for (fs::directory_iterator it(u(root_), fs::wildcard_pattern_string_context(u"*.xml"));
                 it != fs::directory_iterator(); ++it) {
                ++count;
            }
            mismatches += count != 10 || fs::compare(u"/a", u"/A", 1) != 0;
        }
    });
    EXPECT_EQ(mismatches.load(), 0);
}

}  // namespace
