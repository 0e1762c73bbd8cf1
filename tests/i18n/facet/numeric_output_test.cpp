#include "i18n/facet/facet_fixtures.hpp"

#include <gtest/gtest.h>

#include <fl/i18n/ustring.hpp>

#include <functional>
#include <iomanip>
#include <sstream>

using fl::i18n::ustring;

namespace {

using ustream = std::basic_ostringstream<char16_t>;

TEST(NumpunctFacet, HoldsTheClassicPunctuation) {
    auto const ov = facet_test::locale_with_encoding("UTF-8");
    std::locale const locale = facet_test::char16_locale(*ov);
    auto const& punct = std::use_facet<std::numpunct<char16_t>>(locale);
    EXPECT_EQ(punct.decimal_point(), u'.');
    EXPECT_EQ(punct.thousands_sep(), u',');
    EXPECT_EQ(punct.grouping(), "");
    EXPECT_EQ(punct.truename(), u"true");
    EXPECT_EQ(punct.falsename(), u"false");
}

TEST(NumericOutput, StreamsPrintWithClassicPunctuationInEveryEncoding) {
    struct {
        std::function<void(ustream&)> write;
        ustring expected;
    } const cases[] = {
        {[](ustream& s) { s << 1234.5; }, u"1234.5"},
        {[](ustream& s) { s << 1234567; }, u"1234567"},
        {[](ustream& s) { s << -42L; }, u"-42"},
        {[](ustream& s) { s << std::fixed << std::setprecision(2) << 3.14159; }, u"3.14"},
        {[](ustream& s) { s << std::hex << std::showbase << 255u; }, u"0xff"},
        {[](ustream& s) { s << std::scientific << 1.5e10; }, u"1.500000e+10"},
        {[](ustream& s) { s << std::boolalpha << true << false; }, u"truefalse"},
        {[](ustream& s) { s << std::setw(6) << 42; }, u"    42"},
    };
    for (char const* encoding : {"US-ASCII", "UTF-8", "ISO-8859-15", "windows-1252"}) {
        auto const ov = facet_test::locale_with_encoding(encoding);
        std::locale const locale = facet_test::char16_locale(*ov);
        for (auto const& test : cases) {
            ustream stream;
            stream.imbue(locale);
            test.write(stream);
            EXPECT_TRUE(stream.good()) << encoding;
            EXPECT_EQ(stream.str(), test.expected) << encoding;
        }
    }
}

TEST(NumericOutput, WithoutTheFacetsAStreamCannotPrintNumbers) {
    ustream stream;
    stream.exceptions(std::ios_base::badbit);
    EXPECT_THROW(stream << 1, std::bad_cast);
}

}  // namespace
