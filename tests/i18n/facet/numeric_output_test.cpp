#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <functional>
#include <iomanip>
#include <sstream>

using fl::i18n::ustring;
using ustream = std::basic_ostringstream<char16_t>;

namespace {

TEST(NumericOutput, StreamsPrintWithClassicPunctuationInEveryEncoding) {
    struct {
        std::function<void(ustream&)> write;
        ustring expected;
    } const cases[] = {
        {[](ustream& s) { s << 1234.5 << ' ' << 1234567; }, u"1234.5 1234567"},
        {[](ustream& s) { s << std::fixed << std::setprecision(2) << -3.14159; }, u"-3.14"},
        {[](ustream& s) { s << std::hex << std::showbase << 255u; }, u"0xff"},
        {[](ustream& s) { s << std::boolalpha << true << false; }, u"truefalse"},
        {[](ustream& s) { s << std::setw(6) << 42; }, u"    42"},
    };
    for (char const* encoding : {"US-ASCII", "UTF-8", "windows-1252"}) {
        facet_test::char16_locale const loc(encoding);
        for (auto const& test : cases) {
            ustream stream;
            stream.imbue(loc.locale);
            test.write(stream);
            EXPECT_EQ(stream.str(), test.expected) << encoding;
        }
    }
}

TEST(NumericOutput, PlainStandardFacetsAreTheCLocale) {
    std::locale const locale(std::locale(std::locale::classic(), new std::ctype<char16_t>()),
                             new std::numpunct<char16_t>());
    auto const& ctype = std::use_facet<std::ctype<char16_t>>(locale);
    EXPECT_TRUE(ctype.is(std::ctype_base::graph, u'~'));
    EXPECT_FALSE(ctype.is(std::ctype_base::alpha, char16_t(0x00E9)));
    EXPECT_EQ(ctype.toupper(u'a'), u'A');
    EXPECT_EQ(ctype.narrow(char16_t(0x00E9), '?'), '?');
    auto const& punct = std::use_facet<std::numpunct<char16_t>>(locale);
    EXPECT_EQ(punct.decimal_point(), u'.');
    EXPECT_EQ(punct.truename(), u"true");
}

}  // namespace
