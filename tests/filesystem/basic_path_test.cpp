#include <fl/filesystem.hpp>

#include <gtest/gtest.h>
#include <boost/filesystem/path.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

namespace fs = fl::filesystem;
using fl::i18n::ustring;
using fs::native_path;
using fs::upath;

TEST(Upath, HoldsTheNativeForm) {
    struct row {
        ustring input;
        ustring pathname;
    } const rows[] = {
        {u"", u""}, {u"/", u"/"}, {u"a//b/", u"a/b"}, {u"//x///y//", u"/x/y"}, {u"a/./b", u"a/./b"},
    };
    for (auto const& r : rows) {
        EXPECT_EQ(upath(r.input, true).pathname(), r.pathname);
        EXPECT_EQ(upath(r.input, false).pathname(), r.pathname);
    }
    EXPECT_TRUE(upath(u"", true).empty());
    EXPECT_TRUE(upath().empty());
    EXPECT_TRUE(upath().expand_tilde());
}

TEST(Upath, MembersAnswerAsThePathAlgebra) {
    upath const p(u"/usr//lib/libx.so.1/", true);
    EXPECT_EQ(p.pathname(), u"/usr/lib/libx.so.1");
    EXPECT_TRUE(p.is_absolute());
    EXPECT_EQ(p.root_path_length(), 1u);
    EXPECT_EQ(p.root_directory(), u"/");
    EXPECT_EQ(p.root_path(), u"/");
    EXPECT_TRUE(p.root_name().empty());
    EXPECT_EQ(p.relative_path().pathname(), u"usr/lib/libx.so.1");
    EXPECT_EQ(p.parent_path().pathname(), u"/usr/lib");
    EXPECT_EQ(p.parent_path().parent_path().parent_path().pathname(), u"/");
    EXPECT_TRUE(p.parent_path().parent_path().parent_path().parent_path().empty());
    EXPECT_EQ(p.filename(), u"libx.so.1");
    EXPECT_EQ(p.stem(), u"libx.so");
    EXPECT_EQ(p.extension(), u"1");
    EXPECT_EQ(p.pathname_elements().directory, u"/usr/lib");
    EXPECT_EQ(p.first_element(), u"/");
    EXPECT_EQ(p.access_form(), "/usr/lib/libx.so.1");
    EXPECT_EQ(p.generic_form(), u"/usr/lib/libx.so.1");

    upath edited = p;
    edited.replace_extension(u".2");
    EXPECT_EQ(edited.pathname(), u"/usr/lib/libx.so.2");
    edited.remove_filename().remove_filename();
    EXPECT_EQ(edited.pathname(), u"/usr");
    edited /= u"share//doc/";
    EXPECT_EQ(edited.pathname(), u"/usr/share/doc");
    edited /= upath(u"x", false);
    EXPECT_EQ(edited.pathname(), u"/usr/share/doc/x");
    EXPECT_THROW(edited /= u"/abs", fs::InvalidArgument);
    EXPECT_EQ(edited.pathname(), u"/usr/share/doc/x");
    EXPECT_TRUE(edited == upath(u"/usr/share/doc/x/"));
    EXPECT_TRUE(edited != p);
}

TEST(Upath, IteratesElementsBothWays) {
    struct row {
        ustring input;
        std::vector<ustring> elements;
    } const rows[] = {
        {u"", {}},
        {u"/", {u"/"}},
        {u"/a/b", {u"/", u"a", u"b"}},
        {u"a//b/", {u"a", u"b"}},
        {u"\u00e4/\u4e2d", {u"\u00e4", u"\u4e2d"}},
    };
    for (auto const& r : rows) {
        upath const p(r.input);
        std::vector<ustring> forward(p.begin(), p.end());
        EXPECT_EQ(forward, r.elements);
        std::vector<ustring> backward;
        for (auto it = p.end(); it != p.begin();) {
            backward.push_back(*--it);
        }
        std::reverse(backward.begin(), backward.end());
        EXPECT_EQ(backward, r.elements);
    }
}

TEST(NativePath, SameGrammarOnBytes) {
    native_path p("/opt//app/bin/", false);
    EXPECT_EQ(p.pathname(), "/opt/app/bin");
    EXPECT_EQ(p.parent_path().pathname(), "/opt/app");
    EXPECT_EQ(p.filename(), "bin");
    EXPECT_EQ(p.access_form(), "/opt/app/bin");
    p /= "lcdata.xml";
    EXPECT_EQ(p.extension(), "xml");
    std::vector<std::string> elements(p.begin(), p.end());
    EXPECT_EQ(elements, (std::vector<std::string>{"/", "opt", "app", "bin", "lcdata.xml"}));
    p.set_path_name("a\xff//b");
    EXPECT_EQ(p.pathname(), "a\xff/b");
    p.set_path_name("");
    EXPECT_TRUE(p.empty());
}

// Counts calls, so the test can see that an empty text never reaches the converter.
class counting_decoder : public fl::i18n::converter<char16_t, char> {
public:
    mutable int calls = 0;
    std::size_t do_get_destination_size(char const*, std::size_t size) const override {
        return size;
    }
    std::u16string do_convert(char const* source, std::size_t size) const override {
        ++calls;
        return std::u16string(u"<") + std::u16string(source, source + size) + u">";
    }
    std::size_t do_convert(char16_t*, std::size_t, char const*, std::size_t size) const override {
        return size;
    }
};

class counting_encoder : public fl::i18n::converter<char, char16_t> {
public:
    mutable int calls = 0;
    std::size_t do_get_destination_size(char16_t const*, std::size_t size) const override {
        return size;
    }
    std::string do_convert(char16_t const* source, std::size_t size) const override {
        ++calls;
        return std::string(source, source + size);
    }
    std::size_t do_convert(char*, std::size_t, char16_t const*, std::size_t size) const override {
        return size;
    }
};

TEST(AccessForms, CallersConverterSeesOnlyNonEmptyText) {
    namespace d = fs::detail;
    counting_encoder encoder;
    EXPECT_EQ(d::make_native_access_form(u"", encoder), "");
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"", encoder), "");
    EXPECT_EQ(encoder.calls, 0);
    EXPECT_EQ(d::make_native_access_form(u"a//b/", encoder), "a//b/");
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"a//b/", encoder), "a/b");
    EXPECT_EQ(encoder.calls, 2);
    EXPECT_EQ(d::make_native_access_form_with_cleanup(u"//x//"), "/x");
    EXPECT_EQ(d::from_filesystem("a/b"), u"a/b");
}

TEST(BoostPathBridge, ConvertsWithoutCleaningUp) {
    EXPECT_EQ(fs::make_path(u"a//b/", 5).native(), "a//b/");
    EXPECT_EQ(fs::to_ustring(boost::filesystem::path("x//y/")), u"x//y/");
    EXPECT_EQ(fs::to_generic_ustring(boost::filesystem::path("x/y")), u"x/y");

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

    counting_decoder decoder;
    EXPECT_EQ(fs::to_generic_ustring(boost::filesystem::path(), decoder), u"");
    EXPECT_EQ(decoder.calls, 0);
    EXPECT_EQ(fs::to_generic_ustring(boost::filesystem::path("p/q"), decoder), u"<p/q>");
    EXPECT_EQ(decoder.calls, 1);
}

}  // namespace
