#include <fl/i18n.hpp>

#include <gtest/gtest.h>
#include <boost/exception_ptr.hpp>

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
    mode const all(0xF);
    EXPECT_FALSE(all.is_case_sensitive_mode());
    EXPECT_TRUE(all.is_normalized_decompose_mode());
    EXPECT_TRUE(all.is_locale_dependent_mode());
    mode const composed(mode::normalized_compose_mode);
    EXPECT_TRUE(composed.is_normalized_compose_mode());
    EXPECT_FALSE(composed.is_normalized_decompose_mode());
    mode const four(4);  // decomposition without normalisation: neither form
    EXPECT_FALSE(four.is_normalized_compose_mode());
    EXPECT_FALSE(four.is_normalized_decompose_mode());
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
    EXPECT_LT(cmp<case_insensitive>(u"a", u"B"), 0);
}

TEST(Compare, CaseSensitiveOrdersByCodeUnit) {
    // U+FF61 sorts before a surrogate pair by code point, after it by code unit.
    EXPECT_LT(cmp<case_sensitive>(u"\U00010000", u"\uFF61"), 0);
}

TEST(Compare, SizesAreCheckedBeforeIcuBFirst) {
    char16_t const a[] = u"a", b[] = u"b";
    EXPECT_THROW(lc::compare(a, 1, b, 0x40000000, case_sensitive()), CtypeSizeTooLarge);
    EXPECT_THROW(lc::compare(a, 0x40000000, b, 1, normalized_case_insensitive()),
                 CtypeSizeTooLarge);
    EXPECT_EQ(lc::compare(a, 1, a, 1, normalized_compatibility_case_insensitive()), 0);
}

TEST(Compare, EmptyCompatibilitySideReachesIcuAsNull) {
    // ICU answers a null side of u_strCompare with 0 and of unorm_compare with a failure.
    EXPECT_EQ(cmp<normalized_compatibility_case_sensitive>(u"", u"abc"), 0);
    EXPECT_THROW(cmp<normalized_compatibility_case_insensitive>(u"", u"abc"), CtypeStrCompFailure);
}

TEST(CStyleCompare, CountsBeyondInt32AnswerMinusOne) {
    EXPECT_EQ(lc::strncmp(u"same", u"same", 0x80000000UL), -1);
    EXPECT_EQ(lc::strncasecmp(u"same", u"SAME", 0x80000000UL), -1);
    EXPECT_EQ(lc::strncasecmp(u"same", u"SAMEx", 4), 0);
    EXPECT_EQ(lc::strcasecmp(u"\u00E9", u"\u00C9"), 0);
    EXPECT_EQ(lc::strncmp(u"abc", u"abd", 2), 0);
}

TEST(CtypeException, ClonesThroughExceptionPtr) {
    boost::exception_ptr caught;
    try {
        lc::detail::throw_ctype_invalid_character_exception();
    } catch (...) {
        caught = boost::current_exception();
    }
    try {
        boost::rethrow_exception(caught);
    } catch (CtypeInvalidCharacter const& e) {
        EXPECT_STREQ(e.what(), "Invalid character error.");
        EXPECT_EQ(e.get_id(), 4);
    }
}

}  // namespace
