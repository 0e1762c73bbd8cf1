#include <fl/filesystem/temporary_files.hpp>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

// Run once per scenario of "TMPDIR", "TMP" and "TEMP"; EXPECT_TEMP_DIR names the directory that
// must win.
namespace {

using fl::i18n::ustring;

ustring text(std::string const& bytes) {
    return ustring(bytes.begin(), bytes.end());
}

TEST(TempDirectory, FirstUsableCandidateWinsAndTemporaryFilesLandThere) {
    char const* const value = std::getenv("EXPECT_TEMP_DIR");
    ASSERT_NE(value, nullptr) << "scenario without EXPECT_TEMP_DIR";
    std::string const expected = value;
    if (expected == "/tmp" && ::access("/tmp", R_OK | W_OK) != 0) {
        GTEST_SKIP() << "/tmp can't be used on this machine";
    }
    EXPECT_EQ(fl::filesystem::temp_directory_name(), text(expected));

    ustring name;
    std::FILE* const file = fl::filesystem::tmpfile(name, u"", u"ovi18n-probe-", u"");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    std::string const bytes(name.begin(), name.end());
    EXPECT_EQ(bytes.rfind(expected + "/ovi18n-probe-", 0), 0u) << bytes;
    EXPECT_EQ(std::remove(bytes.c_str()), 0);

    ustring const made = fl::filesystem::tmpnam(u"", u"", u"");
    EXPECT_EQ(made.compare(0, expected.size() + 1, text(expected + "/")), 0);
}

}  // namespace
