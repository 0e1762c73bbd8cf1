#include <fl/i18n.hpp>

#include <gtest/gtest.h>

#include "support/expect_thrown.hpp"

using namespace fl::i18n;

namespace {

using mode = character_handling_mode_context;

struct match_case {
    char const* why;
    ustring pattern;
    unsigned int mask;
    ustring text;
    bool matches;
};

match_case const match_cases[] = {
    {"the whole text, not a part", u"b", mode::default_mode, u"abc", false},
    {"composed pattern, decomposed text", u"caf\u00E9", mode::normalized_compose_mode,
     u"cafe\u0301", true},
    {"decomposed pattern, composed text", u"cafe\u0301", mode::normalized_decompose_mode,
     u"caf\u00E9", true},
    {"no normalisation", u"caf\u00E9", mode::default_mode, u"cafe\u0301", false},
    {"the pattern's own text is decomposed", u"[\u00E9]", mode::normalized_decompose_mode, u"e",
     true},
    {"case", u"stra\u00DFe", mode::insensitive_mode, u"STRA\u00DFE", true},
    {"case and normal form", u"\u00C9t\u00E9",
     mode::insensitive_mode | mode::normalized_compose_mode, u"e\u0301T\u00C9", true},
    {"long text beyond the automatic buffer", u"(?:e\u0301){2000}", mode::normalized_decompose_mode,
     ustring(2000, u'\u00E9'), true},
    {"empty text", u"a*", mode::normalized_compose_mode, u"", true},
};

TEST(PatternMatch, BothFormsAgreeOnEveryCase) {
    for (auto const& c : match_cases) {
        EXPECT_EQ(pattern_match(c.pattern, c.mask).match(c.text), c.matches) << c.why;
        pattern_status status;
        ASSERT_EQ(status.compile(c.pattern, c.mask), pattern_status::ok) << c.why;
        std::int32_t result = 0;
        EXPECT_EQ(status.match(c.text, result), c.matches) << c.why;
        EXPECT_EQ(result, pattern_status::ok) << c.why;
    }
}

TEST(PatternMatch, BadPatternsThrow) {
    EXPECT_THROW(pattern_match(u"", mode::default_mode), RegexInvalidArgument);
    EXPECT_THROW(pattern_match(u"(ab", mode::default_mode), RegexFailedObjectCreation);
}

// Each repetition of an alternation keeps a backtracking state, and ICU's stack is bounded.
ustring const& stack_exhausting_text() {
    static ustring const text(1 << 22, u'a');
    return text;
}

TEST(PatternMatch, MatcherFailureSurfaces) {
    pattern_match const p(u"(a|b)*c", mode::default_mode);
    expect_thrown<RegexFailedMatchOperation>([&] { p.match(stack_exhausting_text()); },
                                             [](auto const& e) {
                                                 EXPECT_STREQ(e.what(),
                                                              "fl:i18n:RegexFailedMatchOperation");
                                                 EXPECT_EQ(e.get_id(), 5);
                                             });
    EXPECT_TRUE(p.match(u"abc"));  // the object stays usable
}

TEST(PatternStatus, StatusCodes) {
    std::int32_t result = 0;
    pattern_status fresh;
    EXPECT_FALSE(fresh.match(u"a", result));
    EXPECT_EQ(result, pattern_status::not_compiled);

    pattern_status empty;
    EXPECT_EQ(empty.compile(u"", mode::default_mode), pattern_status::empty_pattern);
    // The first compilation decides for good.
    EXPECT_EQ(empty.compile(u"a", mode::default_mode), pattern_status::empty_pattern);
    EXPECT_FALSE(empty.match(u"a", result));
    EXPECT_EQ(result, pattern_status::not_compiled);

    pattern_status refused;
    EXPECT_EQ(refused.compile(u"(ab", mode::default_mode), pattern_status::creation_failed);
    pattern_status deep;
    ASSERT_EQ(deep.compile(u"(a|b)*c", mode::default_mode), pattern_status::ok);
    EXPECT_FALSE(deep.match(stack_exhausting_text(), result));
    EXPECT_EQ(result, pattern_status::match_failed);
    EXPECT_FALSE(deep.match(u"ab", result));
    EXPECT_EQ(result, pattern_status::ok);
}

}  // namespace
