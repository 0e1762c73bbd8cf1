#include <fl/filesystem.hpp>
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "filesystem/operation_arguments.hpp"
#include "filesystem/temp_directory_fixture.hpp"
#include "support/expect_thrown.hpp"

// Runs in a real UTF-8 locale: start-up makes UTF-8 the file system encoding, which the first
// conversion of the process fixes.

namespace {

namespace fs = fl::filesystem;
namespace sfs = std::filesystem;
using fl::i18n::ustring;

class utf8_setting : public ::testing::Environment {
public:
    void SetUp() override {
        fl::i18n::initialize();
        ASSERT_EQ(fl::i18n::OvLocale::global().getEncoding(), "UTF-8");
    }
};

::testing::Environment* const setting = ::testing::AddGlobalTestEnvironment(new utf8_setting);

class Utf8FileNames : public fstest::temp_directory_test {
protected:
    ustring at16(ustring const& relative) const { return fstest::u(root_ + "/") + relative; }
};

TEST_F(Utf8FileNames, NamesReachTheDiskAsUtf8) {
    struct row {
        ustring name;
        std::string bytes;
    } const rows[] = {
        {u"caf\u00e9", "caf\xC3\xA9"},
        {u"\u4e2d\u6587.txt", "\xE4\xB8\xAD\xE6\x96\x87.txt"},
        {u"\U0001F600", "\xF0\x9F\x98\x80"},
    };
    for (auto const& r : rows) {
        fs::create_directory(at16(r.name));
        EXPECT_TRUE(sfs::is_directory(bytes(r.bytes))) << r.bytes;
        EXPECT_TRUE(fs::exists(fs::upath(at16(r.name))));
        fs::rename(at16(r.name), at16(r.name + u".old"));
        EXPECT_TRUE(sfs::is_directory(bytes(r.bytes + ".old"))) << r.bytes;
        fs::remove(at16(r.name + u".old"));
        EXPECT_FALSE(sfs::exists(bytes(r.bytes + ".old"))) << r.bytes;
    }
}

TEST_F(Utf8FileNames, DecodedEverywhereTheyComeBack) {
    sfs::create_directory(bytes("\xC3\xA9t\xC3\xA9"));
    sfs::create_symlink("\xC3\xA9t\xC3\xA9", bytes("link"));
    EXPECT_EQ(fs::read_symlink(at16(u"link")), u"\u00e9t\u00e9");
    EXPECT_EQ(fs::canonical(at16(u"link"), ustring()),
              fstest::u(sfs::canonical(root_).string()) + u"/\u00e9t\u00e9");
    expect_thrown<fs::FileExistsError>(
        [&] { fs::create_directory(at16(u"\u00e9t\u00e9")); },
        [&](auto const& e) { EXPECT_EQ(e.get_pathname(), at16(u"\u00e9t\u00e9")); });
}

// The converters follow the global encoding; strict and lenient are tested on the drivers.
TEST(Utf8Converters, ConvertInUtf8) {
    EXPECT_EQ(fs::codecvt_ustring_to_filesystem(false).do_convert(u"\u4e2d", 1), "\xE4\xB8\xAD");
    EXPECT_EQ(fs::codecvt_filesystem_to_ustring(false).do_convert("\xE4\xB8\xAD", 3), u"\u4e2d");
}

// The one-pass bytes of an ASCII path are those of its native form converted.
TEST(Utf8Converters, AsciiPathsBecomeTheBytesOfTheirNativeForm) {
    for (ustring const path :
         {u"", u"/", u"//", u"a//b/", u"/tmp///x//y/", u"~", u"~/x//", u"caf\u00E9//x/", u"./.."}) {
        EXPECT_EQ(fs::detail::system_bytes(path),
                  fs::detail::to_filesystem(fs::detail::make_native_form(path, true)));
    }
}

}  // namespace
