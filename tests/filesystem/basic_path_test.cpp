#include <fl/filesystem.hpp>

#include <gtest/gtest.h>
#include <boost/filesystem/path.hpp>

#include "filesystem/path_test_support.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace {

namespace fs = fl::filesystem;
namespace d = fl::filesystem::detail;
using fl::i18n::ustring;
using fs::native_path;
using fs::upath;

TEST(Upath, HoldsTheNativeFormAndKeepsPiecesAsTheyAre) {
    upath const p(u"/usr//lib/libx.so.1/", false);
    EXPECT_EQ(p.pathname(), u"/usr/lib/libx.so.1");
    EXPECT_EQ(p.relative_path().pathname(), u"usr/lib/libx.so.1");
    EXPECT_EQ(p.parent_path().parent_path().parent_path().pathname(), u"/");
    EXPECT_TRUE(p.parent_path().parent_path().parent_path().parent_path().empty());
    EXPECT_FALSE(p.parent_path().expand_tilde());  // pieces keep the flag
    EXPECT_EQ(p.access_form(), "/usr/lib/libx.so.1");

    upath edited = p;
    edited.replace_extension(u".2").remove_filename().remove_filename() /= u"share//doc/";
    EXPECT_EQ(edited.pathname(), u"/usr/share/doc");
    EXPECT_THROW(edited /= u"/abs", fs::InvalidArgument);
    EXPECT_TRUE(edited == upath(u"/usr/share/doc/"));
}

TEST(Upath, IteratesElementsBothWays) {
    upath const p(u"/\u00e4//\u4e2d/x");
    std::vector<ustring> const expected{u"/", u"\u00e4", u"\u4e2d", u"x"};
    EXPECT_EQ(std::vector<ustring>(p.begin(), p.end()), expected);
    std::vector<ustring> backward;
    for (auto it = p.end(); it != p.begin();) {
        backward.push_back(*--it);
    }
    std::reverse(backward.begin(), backward.end());
    EXPECT_EQ(backward, expected);
    upath const empty;
    EXPECT_TRUE(empty.begin() == empty.end());
}

TEST(NativePath, SameGrammarOnBytes) {
    native_path p("/opt//app/bin/", false);
    p /= "lcdata.xml";
    EXPECT_EQ(p.pathname(), "/opt/app/bin/lcdata.xml");
    EXPECT_EQ(std::vector<std::string>(p.begin(), p.end()),
              (std::vector<std::string>{"/", "opt", "app", "bin", "lcdata.xml"}));
    p.set_path_name("a\xff//b");
    EXPECT_EQ(p.pathname(), "a\xff/b");
    p.set_path_name("");
    EXPECT_TRUE(p.empty());
}

TEST(AccessForms, CallersConverterSeesOnlyNonEmptyText) {
    fstest::recording_converter<char, char16_t> encoder;
    EXPECT_EQ(d::make_native_access_form(u"", encoder), "");
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"", encoder), "");
    EXPECT_EQ(encoder.calls, 0);
    EXPECT_EQ(d::make_native_access_form(u"a//b/", encoder), "a//b/");
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"a//b/", encoder), "a/b");
    EXPECT_EQ(encoder.calls, 2);
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"//x//"), "/x");
}

TEST(BoostPathBridge, ConvertsWithoutCleaningUp) {
    EXPECT_EQ(fs::make_path(u"a//b/", 5).native(), "a//b/");
    EXPECT_EQ(fs::to_ustring(boost::filesystem::path("x//y/")), u"x//y/");
    struct row {
        char const* base;
        ustring text;
        char const* expected;
    } const rows[] = {
        {"/a", u"b", "/a/b"}, {"/a/", u"b", "/a/b"}, {"/a", u"/b", "/a/b"},
        {"/a", u"", "/a"},    {"", u"b", "b"},
    };
    for (auto const& r : rows) {
        boost::filesystem::path p(r.base);
        EXPECT_EQ(&fs::append(p, r.text.data(), r.text.size()), &p);
        EXPECT_EQ(p.native(), r.expected) << r.base;
    }
    fstest::recording_converter<char16_t, char> decoder;
    EXPECT_EQ(fs::to_generic_ustring(boost::filesystem::path(), decoder), u"");
    EXPECT_EQ(decoder.calls, 0);
    EXPECT_EQ(fs::to_generic_ustring(boost::filesystem::path("p/q"), decoder), u"p/q");
    EXPECT_EQ(decoder.calls, 1);
}

}  // namespace
