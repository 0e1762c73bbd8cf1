#include <fl/i18n.hpp>

#include <gtest/gtest.h>

namespace lc = fl::i18n::lcctype;
using namespace fl::i18n;  // the tags

namespace {

using mode = character_handling_mode_context;

template <class Tag>
int cmp(ustring const& a, ustring const& b) {
    return lc::compare(a.data(), a.size(), b.data(), b.size(), Tag());
}

TEST(CharacterHandlingMode, MaskBitsAndQueries) {
    EXPECT_THROW(mode(0x10), CtypeInvalidArgument);
    EXPECT_TRUE(mode(0xF).is_normalized_decompose_mode());
    EXPECT_TRUE(mode(mode::normalized_compose_mode).is_normalized_compose_mode());
    EXPECT_FALSE(mode(mode::normalized_compose_mode).is_normalized_decompose_mode());
    EXPECT_FALSE(mode(4).is_normalized_compose_mode());  // 0x4 alone is neither form
    EXPECT_FALSE(mode(4).is_normalized_decompose_mode());
}

TEST(Compare, StrengthsTellDifferentEquivalences) {
    ustring const composed = u"\u00E9", decomposed = u"e\u0301", ligature = u"\uFB01";
    EXPECT_NE(cmp<case_sensitive>(composed, decomposed), 0);
    EXPECT_EQ(cmp<normalized_case_sensitive>(composed, decomposed), 0);
    EXPECT_NE(cmp<normalized_case_sensitive>(ligature, u"fi"), 0);
    EXPECT_EQ(cmp<normalized_compatibility_case_sensitive>(ligature, u"fi"), 0);
    EXPECT_NE(cmp<normalized_compatibility_case_sensitive>(ligature, u"FI"), 0);
    EXPECT_EQ(cmp<normalized_compatibility_case_insensitive>(ligature, u"FI"), 0);
    EXPECT_EQ(cmp<case_insensitive>(u"Stra\u00DFe", u"STRASSE"), 0);
    EXPECT_EQ(cmp<normalized_case_insensitive>(u"\u00C9", decomposed), 0);
    // U+FF61 sorts before a surrogate pair by code point, after it by code unit.
    EXPECT_LT(cmp<case_sensitive>(u"\U00010000", u"\uFF61"), 0);
}

TEST(Compare, LimitsAndEmptySides) {
    char16_t const a[] = u"a", b[] = u"b";
    EXPECT_THROW(lc::compare(a, 1, b, 0x40000000, case_sensitive()), CtypeSizeTooLarge);
    EXPECT_THROW(lc::compare(a, 0x40000000, b, 1, normalized_case_insensitive()),
                 CtypeSizeTooLarge);
    // An empty compatibility form reaches ICU as null: u_strCompare answers 0 and
    // unorm_compare fails.
    EXPECT_EQ(cmp<normalized_compatibility_case_sensitive>(u"", u"abc"), 0);
    EXPECT_THROW(cmp<normalized_compatibility_case_insensitive>(u"", u"abc"), CtypeStrCompFailure);
}

TEST(CStyleCompare, CountsBeyondInt32AnswerMinusOne) {
    EXPECT_EQ(lc::strncmp(u"same", u"same", 0x80000000UL), -1);
    EXPECT_EQ(lc::strncasecmp(u"same", u"SAME", 0x80000000UL), -1);
    EXPECT_EQ(lc::strncasecmp(u"same", u"SAMEx", 4), 0);
    EXPECT_EQ(lc::strcasecmp(u"\u00E9", u"\u00C9"), 0);
}

}  // namespace
