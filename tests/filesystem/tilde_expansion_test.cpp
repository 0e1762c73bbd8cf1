#include <fl/filesystem.hpp>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "filesystem/path_test_support.hpp"

// Runs with HOME set by the test definition: "/home/u", or "/home/u/" for the variant that
// checks a home with a trailing separator.

namespace {

namespace d = fl::filesystem::detail;
using fl::filesystem::native_path;
using fl::filesystem::upath;
using fstest::u;

std::string home_in_user_database(char const* user) {
    passwd const* entry = user != nullptr ? ::getpwnam(user) : ::getpwuid(::getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "";
}

TEST(TildeExpansion, LeadingTildeOnly) {
    ASSERT_NE(std::getenv("HOME"), nullptr);
    std::string const root_home = home_in_user_database("root");
    struct row {
        std::string input;
        bool expand;
        std::string expected;
    } const rows[] = {
        {"~", true, "/home/u"},
        {"~/", true, "/home/u"},
        {"~/x", true, "/home/u/x"},
        {"~//x/", true, "/home/u/x"},
        {"~", false, "~"},
        {"~/x", false, "~/x"},
        {"x/~", true, "x/~"},
        {"/~/x", true, "/~/x"},
        {"~root", true, root_home},
        {"~root/x", true, root_home + "/x"},
        {"~no-such-user-q7z/x", true, "~no-such-user-q7z/x"},
        {"~no-such-user-q7z", true, "~no-such-user-q7z"},
    };
    for (auto const& r : rows) {
        EXPECT_EQ(d::make_native_form(u(r.input), r.expand), u(r.expected)) << r.input;
        EXPECT_EQ(d::make_native_form(r.input, r.expand), r.expected) << r.input;
        EXPECT_EQ(native_path(r.input, r.expand).pathname(), r.expected) << r.input;
    }
}

TEST(TildeExpansion, EmptyHomeFallsBackToUserDatabase) {
    std::string const saved = std::getenv("HOME");
    ASSERT_EQ(::setenv("HOME", "", 1), 0);
    std::string const home = home_in_user_database(nullptr);
    std::string const expected = home.empty() ? "" : d::make_native_form(home + "/x", false);
    EXPECT_EQ(d::make_native_form(std::string("~/x"), true), expected);
    ASSERT_EQ(::setenv("HOME", saved.c_str(), 1), 0);
}

TEST(TildeExpansion, PathKeepsItsFlagForLaterText) {
    EXPECT_FALSE(upath(u"~/x", false).is_absolute());
    EXPECT_TRUE(upath(u"~/x", true).is_absolute());
    upath with_tilde(u"base", true);
    EXPECT_THROW(with_tilde /= u"~/y", fl::filesystem::InvalidArgument);
    EXPECT_EQ(with_tilde.pathname(), u"base");

    upath without_tilde(u"base", false);
    without_tilde /= u"~/y";
    EXPECT_EQ(without_tilde.pathname(), u"base/~/y");

    upath copy = without_tilde;
    copy.set_path_name(u"~");
    EXPECT_EQ(copy.pathname(), u"~");

    native_path narrow("x", true);
    narrow.set_path_name("~//y/");
    EXPECT_EQ(narrow.pathname(), "/home/u/y");
}

TEST(TildeExpansion, AccessFormsCleanOnlyWhenAsked) {
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u("~//a/")), "/home/u/a");
    EXPECT_EQ(d::make_native_access_form(u("~//a/")), "~//a/");
    EXPECT_EQ(d::to_filesystem(u("~/a")), "~/a");
}

}  // namespace
