#include <fl/filesystem.hpp>
#include <fl/i18n/lcctype/pattern_match.hpp>

#include "filesystem/wildcard_prefilter.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <random>
#include <set>
#include <string>

#include "filesystem/temp_directory_fixture.hpp"
#include "support/expect_thrown.hpp"

// Part of utf8_file_names_test, whose start-up in a UTF-8 locale makes names with accents and
// Japanese reach the disk as UTF-8, while a name of invalid bytes stays invalid.
namespace {

namespace fs = fl::filesystem;
using fl::i18n::ustring;
using fstest::u;

using name_set = std::set<ustring>;

class DirectoryIteration : public fstest::temp_directory_test {
protected:
    void SetUp() override {
        for (char const* name :
             {"plain.xml", "b.txt", "A.XML", "a.xml", "ab", "axxb", "a?", "ab?", "a+b(c)[d]",
              "caf\xC3\xA9.xml", "cafe\xCC\x81.xml", "\xE6\x97\xA5\xE6\x9C\xAC.txt", "bad\xFF",
              "cr\rname", "lf\nname"}) {
            write_file(name);
        }
        std::filesystem::create_directory(bytes("dir"));
        std::filesystem::create_directory_symlink("dir", bytes("link_dir"));
        std::filesystem::create_symlink("missing", bytes("dangling"));
        std::filesystem::create_symlink("loop2", bytes("loop1"));
        std::filesystem::create_symlink("loop1", bytes("loop2"));
        ASSERT_EQ(::mkfifo(bytes("fifo").c_str(), 0600), 0);
    }

    name_set list(fs::directory_iterator it) const {
        name_set names;
        for (; it != fs::directory_iterator(); ++it) {
            names.insert(it->filename());
        }
        return names;
    }
    name_set matching(ustring const& wildcards) const {
        return list(fs::directory_iterator(fs::upath(u(root_)),
                                           fs::wildcard_pattern_string_context(wildcards)));
    }
};

TEST_F(DirectoryIteration, ListsEveryEntryWithDotsAndDecodesAnew) {
    name_set const names = list(fs::directory_iterator(u(root_)));
    EXPECT_EQ(names.size(), 23u);
    for (ustring const name : {u".", u"..", u"caf\u00E9.xml", u"cafe\u0301.xml",
                               u"\u65E5\u672C.txt", u"cr\rname", u"fifo", u"loop1"}) {
        EXPECT_EQ(names.count(name), 1u);
    }
    fs::directory_iterator it(u(root_), fs::wildcard_pattern_string_context(u"bad*"));
    EXPECT_EQ(fs::detail::raw_filename(*it), "bad\xFF");
    EXPECT_EQ(it->filename(), u"bad\uFFFD");
    EXPECT_EQ(it->pathname(), u(root_));
    EXPECT_EQ(it->full_pathname(), u(root_) + u"/bad\uFFFD");
    EXPECT_TRUE(it->alternative_filename().empty());
}

TEST_F(DirectoryIteration, TypesOfEntriesAndTheirTargets) {
    struct row {
        char const* name;
        unsigned int type;
        unsigned int target;
    } const rows[] = {
        {"plain.xml", fs::file_status::regular_file, fs::file_status::regular_file},
        {"dir", fs::file_status::directory_file, fs::file_status::directory_file},
        {"link_dir", fs::file_status::symlink_file, fs::file_status::directory_file},
        {"dangling", fs::file_status::symlink_file, fs::file_status::file_not_found},
        {"fifo", fs::file_status::fifo_file, fs::file_status::fifo_file},
    };
    for (auto const& r : rows) {
        SCOPED_TRACE(r.name);
        fs::directory_iterator it(u(root_), fs::wildcard_pattern_string_context(u(r.name)));
        ASSERT_NE(it, fs::directory_iterator());
        EXPECT_EQ(it->type(), r.type);
        EXPECT_EQ(it->target_type(), r.target);
        EXPECT_EQ(it->target_type_without_validation(), r.target);
        EXPECT_EQ(it->symlink_status().type(), r.type);
    }
    fs::directory_iterator loop(u(root_), fs::wildcard_pattern_string_context(u"loop1"));
    EXPECT_EQ(loop->type(), fs::file_status::symlink_file);
    expect_thrown<fs::SystemError>(
        [&] { loop->target_type(); },
        [&](auto const& e) { EXPECT_EQ(e.get_pathname(), u(root_) + u"/loop1"); });
}

TEST_F(DirectoryIteration, OnlyTheStarIsAWildcardAndMatchingIsExact) {
    struct row {
        ustring wildcards;
        name_set names;
    } const rows[] = {
        {u"*.xml", {u"plain.xml", u"a.xml", u"caf\u00E9.xml", u"cafe\u0301.xml"}},
        {u"a*b", {u"ab", u"axxb"}},
        {u"a***b", {u"ab", u"axxb"}},
        {u"a?", {u"a?"}},
        {u"a+b(c)[d]", {u"a+b(c)[d]"}},
        {u"A.XML", {u"A.XML"}},
        {u"caf\u00E9.xml", {u"caf\u00E9.xml"}},
        {u"cr*", {u"cr\rname"}},
        {u"lf*", {}},
        {u"\u65E5*", {u"\u65E5\u672C.txt"}},
    };
    for (auto const& r : rows) {
        SCOPED_TRACE(std::string(r.wildcards.begin(), r.wildcards.end()));
        EXPECT_EQ(matching(r.wildcards), r.names);
    }
    // "." and ".." give a plain ".*", which stops at the carriage return too.
    name_set expected = list(fs::directory_iterator(u(root_)));
    expected.erase(u"cr\rname");
    expected.erase(u"lf\nname");
    EXPECT_EQ(matching(u"."), expected);
    EXPECT_EQ(matching(u".."), expected);
}

TEST(WildcardPattern, GeneratedExpressions) {
    struct row {
        ustring wildcards;
        ustring pattern;
    } const rows[] = {
        {u"", u""},
        {u".", u"^.*$"},
        {u"..", u"^.*$"},
        {u"*", u"^(.|\\r)*$"},
        {u"a*b", u"^a(.|\\r)*b$"},
        {u"a**", u"^a(.|\\r)*$"},
        {u"**a", u"^(.|\\r)*a$"},
        {u"a.txt", u"^a\\.txt$"},
        {u"a?", u"^a\\?$"},
        {u"$()+[\\^{|}]", u"^\\$\\(\\)\\+\\[\\\\\\^\\{\\|\\}]$"},
        {u"\u00E9", u"^\u00E9$"},
    };
    for (auto const& r : rows) {
        EXPECT_EQ(fs::detail::generate_pattern_from_filename(
                      r.wildcards, fs::detail::velmor_pattern_string_generator()),
                  r.pattern);
    }
}

// The prefilter may only reject names that the regular expression rejects too.
TEST(WildcardPattern, PrefilterNeverRejectsAMatch) {
    ustring const alphabet = u"ab.*?\r\n\u00E9e\u0301A";
    std::mt19937 random(7);
    auto const text = [&](std::size_t longest) {
        ustring t(random() % (longest + 1), u'a');
        for (auto& unit : t) {
            unit = alphabet[random() % alphabet.size()];
        }
        return t;
    };
    int matches = 0;
    for (int p = 0; p < 300; ++p) {
        ustring filename = text(5);
        if (filename.empty()) {
            continue;
        }
        ustring const pattern = fs::detail::generate_pattern_from_filename(
            filename, fs::detail::velmor_pattern_string_generator());
        fl::i18n::pattern_status icu;
        ASSERT_EQ(icu.compile(pattern, 0), fl::i18n::pattern_status::ok);
        fs::detail::wildcard_prefilter const prefilter(filename, pattern);
        for (int n = 0; n < 200; ++n) {
            // Half the names grow from the file name, so that matches are common.
            ustring name = n % 2 ? text(8) : filename;
            for (auto& unit : name) {
                if (unit == u'*') {
                    unit = alphabet[random() % alphabet.size()];
                }
            }
            std::int32_t status = 0;
            bool const matched = icu.match(name, status);
            matches += matched;
            ASSERT_TRUE(prefilter.may_match(name) || !matched);
        }
    }
    EXPECT_GT(matches, 1000);
}

class raw_pattern : public fs::pattern_string_context {
public:
    raw_pattern(ustring const& name, ustring const& expression) {
        filename = name;
        pattern = expression;
    }
};

TEST_F(DirectoryIteration, RefusalsComeBeforeOpening) {
    ustring const missing = u(root_) + u"/missing";
    for (auto const& p :
         {raw_pattern(u"", u"x"), raw_pattern(u"x", u""), raw_pattern(u"a/b", u"x")}) {
        EXPECT_THROW(fs::directory_iterator(fs::upath(missing), p), fs::InvalidArgument);
    }
    expect_thrown<fs::PathNotFound>(
        [&] {
            fs::directory_iterator(fs::upath(missing),
                                   fs::wildcard_pattern_string_context(u"*.xml"));
        },
        [&](auto const& e) { EXPECT_EQ(e.get_pathname(), missing + u"/*.xml"); });
    expect_thrown<fs::PathNotFound>([&] { fs::directory_iterator{missing}; },
                                    [&](auto const& e) { EXPECT_EQ(e.get_pathname(), missing); });
    EXPECT_THROW(fs::directory_iterator(u(root_ + "/plain.xml")), fs::NotDirectoryError);
    EXPECT_EQ(fs::directory_iterator(ustring()), fs::directory_iterator());
    EXPECT_EQ(fs::directory_iterator(fs::upath()), fs::directory_iterator());

    raw_pattern const bad(u"x", u"(");
    EXPECT_THROW(fs::directory_iterator(fs::upath(u(root_)), bad), fs::InvalidArgument);
    EXPECT_EQ(fs::directory_iterator(fs::upath(u(root_)), bad, true), fs::directory_iterator());
}

TEST_F(DirectoryIteration, CopiesShareOnePosition) {
    std::filesystem::create_directory(bytes("empty"));
    fs::directory_iterator first(u(root_ + "/empty"));
    fs::directory_iterator const copy = first;
    EXPECT_EQ(first, copy);
    ustring const one = first->filename();
    ++first;
    EXPECT_NE(copy->filename(), one);  // the copy moved too
    EXPECT_EQ(name_set({one, copy->filename()}), name_set({u".", u".."}));
    ++first;
    EXPECT_EQ(copy, fs::directory_iterator());
    EXPECT_EQ(first, fs::directory_iterator());
}

TEST_F(DirectoryIteration, DirectoryRemovedWhileOpenEndsQuietly) {
    std::filesystem::create_directory(bytes("gone"));
    fs::directory_iterator it(u(root_ + "/gone"));
    std::filesystem::remove(bytes("gone"));
    int steps = 0;
    for (; it != fs::directory_iterator() && steps < 10; ++it) {
        ++steps;
    }
    EXPECT_LE(steps, 2);
}

}  // namespace
