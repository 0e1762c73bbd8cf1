#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/codecvt/string_conversion.hpp>

#include "i18n/codecvt/thrown_id.hpp"

#include <gtest/gtest.h>

namespace fl::i18n {
namespace {

TEST(string_conversion, null_and_empty_inputs_give_empty_results) {
    codecvt_string_to_ustring const in("UTF-8", false);
    codecvt_ustring_to_string const out("UTF-8", false);
    EXPECT_TRUE(to_ustring(static_cast<char const*>(nullptr)).empty());
    EXPECT_TRUE(to_ustring(static_cast<wchar_t const*>(nullptr)).empty());
    EXPECT_TRUE(to_ustring(static_cast<char32_t const*>(nullptr)).empty());
    EXPECT_TRUE(to_u32string(static_cast<char16_t const*>(nullptr)).empty());
    EXPECT_TRUE(to_ustring(static_cast<char const*>(nullptr), in).empty());
    EXPECT_TRUE(to_ustring("", in).empty());
    EXPECT_TRUE(to_ustring("").empty());
    EXPECT_TRUE(to_ustring(std::string()).empty());
    EXPECT_TRUE(to_ustring(std::string(), in).empty());
    EXPECT_TRUE(to_string(ustring()).empty());
    EXPECT_TRUE(to_string(ustring(), out).empty());
    EXPECT_TRUE(to_ustring(L"").empty());
    EXPECT_TRUE(to_wstring(ustring()).empty());
    EXPECT_TRUE(to_u32string(ustring()).empty());
}

TEST(string_conversion, default_encoding_substitutes_where_a_strict_converter_throws) {
    // Before start-up the default encoding is US-ASCII.
    ustring const lone_surrogate(1, char16_t(0xD800));
    ustring const text = u"ok" + lone_surrogate + u"!";
    EXPECT_EQ(to_string(text), "ok\x1A!");
    EXPECT_EQ(to_ustring("caf\xC3\xA9"), u"caf\uFFFD\uFFFD");
    EXPECT_EQ(to_ustring(std::string("plain")), u"plain");
    EXPECT_EQ(thrown_id([&] { to_string(text, codecvt_ustring_to_string("UTF-8", false)); }),
              codecvt_invalid_character);
    EXPECT_EQ(to_ustring("caf\xC3\xA9", codecvt_string_to_ustring("UTF-8", false)), u"caf\u00E9");
}

TEST(string_conversion, converter_is_used_as_it_stands) {
    codecvt_ustring_to_string out(call_back_escape_xml_dec, "US-ASCII");
    EXPECT_EQ(to_string(u"\u00E9", out), "&#233;");
    EXPECT_EQ(out.get_call_back_mode(), call_back_escape_xml_dec);
}

TEST(string_conversion, thirty_two_bit_forms) {
    EXPECT_EQ(to_ustring(U"a\U0001F600"), u"a\U0001F600");
    EXPECT_EQ(to_ustring(std::u32string(U"\U0010FFFF")), u"\U0010FFFF");
    EXPECT_EQ(to_ustring(L"x\U00010000"), u"x\U00010000");
    EXPECT_EQ(to_ustring(std::wstring(L"\u00E9")), u"\u00E9");
    EXPECT_EQ(to_u32string(u"a\U0001F600" + ustring(1, char16_t(0xD800))), U"a\U0001F600\uFFFD");
    EXPECT_EQ(to_u32string(u"\U0001F600z"), U"\U0001F600z");
    EXPECT_EQ(to_wstring(ustring(1, char16_t(0xDFFF)) + u"\U00020000"), L"\uFFFD\U00020000");
}

}  // namespace
}  // namespace fl::i18n
