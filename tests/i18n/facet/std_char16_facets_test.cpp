#include <fl/i18n/facet/std_char16_support.hpp>

#include <gtest/gtest.h>

#include <locale>

namespace {

// The standard's own char16_t facets, as a program gets them without this library's facets.
class StdChar16Facets : public ::testing::Test {
protected:
    std::locale locale{std::locale(std::locale::classic(), new std::ctype<char16_t>()),
                       new std::numpunct<char16_t>()};
    std::ctype<char16_t> const& ctype = std::use_facet<std::ctype<char16_t>>(locale);
};

TEST_F(StdChar16Facets, CtypeIsTheCLocaleOnAscii) {
    using base = std::ctype_base;
    EXPECT_TRUE(ctype.is(base::alpha, u'a'));
    EXPECT_TRUE(ctype.is(base::graph, u'~'));
    EXPECT_FALSE(ctype.is(base::graph, u' '));
    EXPECT_FALSE(ctype.is(base::alpha, char16_t(0x00E9)));
    EXPECT_FALSE(ctype.is(base::alpha, char16_t(0x0100 + u'a')));
    EXPECT_EQ(ctype.toupper(u'a'), u'A');
    EXPECT_EQ(ctype.toupper(char16_t(0x00E9)), 0x00E9);
    EXPECT_EQ(ctype.tolower(u'Z'), u'z');
    EXPECT_EQ(ctype.widen('\xE9'), 0x00E9);
    EXPECT_EQ(ctype.narrow(u'A', '?'), 'A');
    EXPECT_EQ(ctype.narrow(char16_t(0x00E9), '?'), '?');

    char16_t const text[] = u"ab1 ";
    EXPECT_EQ(ctype.scan_is(base::digit, text, text + 4), text + 2);
    EXPECT_EQ(ctype.scan_not(base::alnum, text, text + 4), text + 3);
    base::mask masks[4];
    ctype.is(text, text + 4, masks);
    EXPECT_EQ(masks[2], base::digit | base::xdigit | base::print);
    EXPECT_EQ(masks[3], base::space | base::print);
}

TEST_F(StdChar16Facets, NumpunctIsTheCLocale) {
    auto const& punct = std::use_facet<std::numpunct<char16_t>>(locale);
    EXPECT_EQ(punct.decimal_point(), u'.');
    EXPECT_EQ(punct.thousands_sep(), u',');
    EXPECT_EQ(punct.grouping(), "");
    EXPECT_EQ(punct.truename(), u"true");
    EXPECT_EQ(punct.falsename(), u"false");
}

}  // namespace
