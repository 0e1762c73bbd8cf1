#include <fl/i18n/time/environment.hpp>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

using fl::i18n::ustring;

char const* const variable = "OVI18N_ENV_TEST_VARIABLE";

class Environment : public ::testing::Test {
protected:
    void SetUp() override { ::unsetenv(variable); }
    void TearDown() override { ::unsetenv(variable); }

    static char const* raw() { return std::getenv(variable); }
};

// Each refusal answers -1 (getenv: empty text) with EINVAL and leaves the variable as it was.
TEST_F(Environment, RefusalsSetEinvalAndChangeNothing) {
    ::setenv(variable, "kept", 1);
    struct Case {
        char const* what;
        std::function<int()> call;
    };
    Case const cases[] = {
        {"getenv of an empty name", [] { return fl::i18n::getenv("").empty() ? -1 : 0; }},
        {"setenv of an empty name", [] { return fl::i18n::setenv("", u"x", 1, true); }},
        {"unsetenv of an empty name", [] { return fl::i18n::unsetenv(""); }},
        {"name refused by the C library", [] { return fl::i18n::setenv("A=B", u"x", 1, false); }},
        {"empty value not allowed", [] { return fl::i18n::setenv(variable, u"", 1, false); }},
    };
    for (Case const& c : cases) {
        errno = 0;
        EXPECT_EQ(c.call(), -1) << c.what;
        EXPECT_EQ(errno, EINVAL) << c.what;
    }
    EXPECT_STREQ(raw(), "kept");
}

// An unset variable reads empty and leaves errno alone; an empty value, when allowed, is set;
// removing a variable succeeds whether it is there or not.
TEST_F(Environment, EmptyAndAbsentValues) {
    errno = ERANGE;
    EXPECT_TRUE(fl::i18n::getenv(variable).empty());
    EXPECT_EQ(errno, ERANGE);
    EXPECT_EQ(fl::i18n::setenv(variable, u"", 1, true), 0);
    EXPECT_STREQ(raw(), "");
    EXPECT_TRUE(fl::i18n::getenv(variable).empty());
    EXPECT_EQ(fl::i18n::unsetenv(variable), 0);
    EXPECT_EQ(raw(), nullptr);
    EXPECT_EQ(fl::i18n::unsetenv(variable), 0);
}

TEST_F(Environment, OverwriteDecidesWhetherAnExistingValueStays) {
    ::setenv(variable, "old", 1);
    EXPECT_EQ(fl::i18n::setenv(variable, u"new", 0, false), 0);
    EXPECT_EQ(fl::i18n::getenv(variable), u"old");
    EXPECT_EQ(fl::i18n::setenv(variable, u"new", 1, false), 0);
    EXPECT_STREQ(raw(), "new");
}

// Before start-up the default encoding is US-ASCII: text beyond it is substituted, not refused,
// and bytes beyond it read back as U+FFFD.
TEST_F(Environment, TextBeyondAsciiIsSubstitutedBothWays) {
    ASSERT_EQ(fl::i18n::setenv(variable, u"a\u00E9b", 1, false), 0);
    std::string const stored = raw();
    EXPECT_TRUE(stored.size() == 3 && stored[0] == 'a' && stored[1] != '\xE9' && stored[2] == 'b')
        << stored;
    ::setenv(variable, "x\xC3\xA9y", 1);
    ustring const read = fl::i18n::getenv(variable);
    EXPECT_TRUE(read.front() == u'x' && read.back() == u'y' &&
                read.find(u'\uFFFD') != ustring::npos);
}

TEST_F(Environment, LongValuesComeBackWhole) {
    for (std::size_t length : {1023u, 1024u, 1025u, 40000u}) {
        std::string const bytes(length, 'v');
        ::setenv(variable, bytes.c_str(), 1);
        EXPECT_EQ(fl::i18n::getenv(variable), ustring(length, u'v')) << length;

        EXPECT_EQ(fl::i18n::setenv(variable, ustring(length, u'w'), 1, false), 0);
        EXPECT_EQ(std::string(raw()), std::string(length, 'w')) << length;
    }
}

}  // namespace
