#include <fl/filesystem.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "filesystem/path_test_support.hpp"

namespace {

namespace d = fl::filesystem::detail;
using fstest::as;

// Every table runs over UTF-16 path names and over the bytes of narrow native paths: the
// grammar is the same.
template <class CharT>
class PathAlgebra : public ::testing::Test {
protected:
    using string = std::basic_string<CharT>;
    static string s(std::string const& ascii) { return as<CharT>(ascii); }
};

using CharTypes = ::testing::Types<char16_t, char>;
TYPED_TEST_SUITE(PathAlgebra, CharTypes);

TYPED_TEST(PathAlgebra, NativeFormCollapsesAndTrimsButResolvesNothing) {
    struct row {
        char const* input;
        char const* native;
    } const rows[] = {
        {"", ""},       {"/", "/"},         {"//", "/"},
        {"///", "/"},   {"//a", "/a"},      {"a//b///", "a/b"},
        {"a/", "a"},    {"a/./b", "a/./b"}, {"a/../b/", "a/../b"},
        {"~/x", "~/x"}, {"x/~", "x/~"},     {"/a/b", "/a/b"},
    };
    for (auto const& r : rows) {
        EXPECT_EQ(d::make_native_form(this->s(r.input), false), this->s(r.native)) << r.input;
    }
    EXPECT_FALSE(d::is_absolute(d::make_native_form(this->s("~/x"), false)));
}

TYPED_TEST(PathAlgebra, SingleExtractors) {
    struct row {
        char const* input;
        char const* parent;
        char const* filename;
        char const* stem;
        char const* extension;
        char const* relative;
        char const* root;
    } const rows[] = {
        {"", "", "", "", "", "", ""},
        {"/", "", "/", "/", "", "", "/"},
        {"/a", "/", "a", "a", "", "a", "/"},
        {"a", "", "a", "a", "", "a", ""},
        {"a/b/", "a/b", "", "", "", "a/b/", ""},
        {"a/b.c.d", "a", "b.c.d", "b.c", "d", "a/b.c.d", ""},
        {"/x/.profile", "/x", ".profile", "", "profile", "x/.profile", "/"},
        {"a.", "", "a.", "a", "", "a.", ""},
        {"d/..", "d", "..", "..", "", "d/..", ""},
        {"d/.", "d", ".", ".", "", "d/.", ""},
        {"dir.d/file", "dir.d", "file", "file", "", "dir.d/file", ""},
    };
    for (auto const& r : rows) {
        auto const text = this->s(r.input);
        EXPECT_EQ(d::extract_parent_path(text), this->s(r.parent)) << r.input;
        EXPECT_EQ(d::extract_filename(text), this->s(r.filename)) << r.input;
        EXPECT_EQ(d::extract_stem(text), this->s(r.stem)) << r.input;
        EXPECT_EQ(d::extract_extension(text), this->s(r.extension)) << r.input;
        EXPECT_EQ(d::extract_relative_path(text), this->s(r.relative)) << r.input;
        EXPECT_EQ(d::extract_root_directory(text), this->s(r.root)) << r.input;
        EXPECT_EQ(d::extract_root_path(text), this->s(r.root)) << r.input;
        EXPECT_EQ(d::get_root_path_length(text), std::string(r.root).size()) << r.input;
        EXPECT_EQ(d::is_absolute(text), *r.root != '\0') << r.input;
        EXPECT_TRUE(d::extract_root_name(text).empty()) << r.input;
    }
}

TYPED_TEST(PathAlgebra, ElementsInOnePassDifferFromSingleExtractors) {
    struct row {
        char const* input;
        char const* directory;
        char const* filename;
        char const* stem;
        char const* extension;
    } const rows[] = {
        {"", "", "", "", ""},
        {"/", "", "/", "/", ""},
        {"/a.txt", "/", "a.txt", "a", "txt"},
        {"a.", "", "a.", "a.", ""},  // extract_stem gives "a"
        {".profile", "", ".profile", "", "profile"},
        {"..", "", "..", "..", ""},
        {".", "", ".", ".", ""},
        {"x/y/z.tar.gz", "x/y", "z.tar.gz", "z.tar", "gz"},
        {"x.d/y", "x.d", "y", "y", ""},
    };
    for (auto const& r : rows) {
        auto const e = d::extract_pathname_elements(this->s(r.input));
        EXPECT_EQ(e.directory, this->s(r.directory)) << r.input;
        EXPECT_EQ(e.filename, this->s(r.filename)) << r.input;
        EXPECT_EQ(e.stem, this->s(r.stem)) << r.input;
        EXPECT_EQ(e.extension, this->s(r.extension)) << r.input;
    }
}

TYPED_TEST(PathAlgebra, CursorWalksBothWays) {
    struct row {
        char const* input;
        std::vector<char const*> elements;
    } const rows[] = {
        {"", {}},
        {"/", {"/"}},
        {"a", {"a"}},
        {"/a/b", {"/", "a", "b"}},
        {"a/b", {"a", "b"}},
        {"/usr/local/lib64", {"/", "usr", "local", "lib64"}},
        {"../x", {"..", "x"}},
    };
    using string = typename TestFixture::string;
    for (auto const& r : rows) {
        string const text = this->s(r.input);
        unsigned long const root = d::get_root_path_length(text);
        std::vector<string> expected;
        for (char const* e : r.elements) {
            expected.push_back(this->s(e));
        }

        std::vector<string> forward;
        unsigned long position = 0;
        string element = d::extract_first_element(text, root);
        while (position < text.size()) {
            forward.push_back(element);
            d::move_down(text, root, position, element);
        }
        EXPECT_EQ(forward, expected) << r.input;
        EXPECT_EQ(position, text.size()) << r.input;
        EXPECT_TRUE(element.empty()) << r.input;
        d::move_down(text, root, position, element);  // past the end stays at the end
        EXPECT_EQ(position, text.size()) << r.input;

        std::vector<string> backward;
        while (position != 0) {
            d::move_up(text, root, position, element);
            backward.push_back(element);
        }
        std::reverse(backward.begin(), backward.end());
        EXPECT_EQ(backward, expected) << r.input;
        string const first = element;
        d::move_up(text, root, position, element);  // at the beginning nothing moves
        EXPECT_EQ(position, 0u) << r.input;
        EXPECT_EQ(element, first) << r.input;
    }
}

TYPED_TEST(PathAlgebra, RemoveFilename) {
    struct row {
        char const* input;
        char const* expected;
    } const rows[] = {
        {"", ""}, {"a", ""}, {"/", ""}, {"/a", "/"}, {"a/b", "a"}, {"a/", "a"}, {"/a/b", "/a"},
    };
    for (auto const& r : rows) {
        auto text = this->s(r.input);
        EXPECT_EQ(&d::remove_filename(text), &text);
        EXPECT_EQ(text, this->s(r.expected)) << r.input;
    }
}

TYPED_TEST(PathAlgebra, ReplaceExtension) {
    struct row {
        char const* input;
        char const* extension;
        char const* expected;  // null: InvalidArgument, input unchanged
    } const rows[] = {
        {"a.txt", "md", "a.md"},
        {"a.txt", ".md", "a.md"},
        {"a", "md", "a.md"},
        {"a", ".md", "a.md"},
        {"a.b.c", "d", "a.b.d"},
        {"dir.d/a", "md", "dir.d/a.md"},
        {".profile", "md", ".md"},  // the leading dot is the extension's dot
        {"a.", "md", "a..md"},      // a trailing dot is no extension and stays
        {"a.", ".md", "a..md"},
        {"a.txt", "", "a.txt"},  // empty does not remove
        {"", "md", ""},
        {"a/..", "md", "a/.."},
        {"a/.", "md", "a/."},
        {"a/b/", "md", "a/b/"},
        {"a/..", "..bad", "a/.."},  // unchanged cases come before validation
        {"a", "..txt", nullptr},
        {"a", ".", nullptr},
        {"a", "..", nullptr},
        {"a", "x/y", nullptr},
    };
    for (auto const& r : rows) {
        auto text = this->s(r.input);
        if (r.expected == nullptr) {
            EXPECT_THROW(d::replace_extension(text, this->s(r.extension)),
                         fl::filesystem::InvalidArgument)
                << r.input << " " << r.extension;
            EXPECT_EQ(text, this->s(r.input));
        } else {
            d::replace_extension(text, this->s(r.extension));
            EXPECT_EQ(text, this->s(r.expected)) << r.input << " " << r.extension;
        }
    }
}

TYPED_TEST(PathAlgebra, ConcatenatePathname) {
    struct row {
        char const* base;
        char const* text;
        char const* expected;  // null: InvalidArgument, base unchanged
    } const rows[] = {
        {"/", "a", "/a"},        {"a", "/b", nullptr}, {"", "/b", "/b"},     {"a", "", "a/"},
        {"a", "b//c/", "a/b/c"}, {"a/", "b", "a/b"},   {"a//", "b", "a//b"}, {"", "", ""},
        {"/x", "//y", nullptr},
    };
    for (auto const& r : rows) {
        auto base = this->s(r.base);
        if (r.expected == nullptr) {
            EXPECT_THROW(d::concatenate_pathname(base, this->s(r.text), false),
                         fl::filesystem::InvalidArgument)
                << r.base << " + " << r.text;
            EXPECT_EQ(base, this->s(r.base));
        } else {
            EXPECT_EQ(d::concatenate_pathname(base, this->s(r.text), false), this->s(r.expected))
                << r.base << " + " << r.text;
        }
    }
}

}  // namespace
