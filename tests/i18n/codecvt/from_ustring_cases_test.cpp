#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>

#include "i18n/codecvt/conversion_check.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace {

struct from_ustring_case {
    char const* reason;
    char const* encoding;
    std::u16string text;
    std::string expected;
    codecvt_call_back_mode mode;
    int error;  // codecvt_excp_id, 0 for success
    std::string substitution;
};

constexpr int invalid = codecvt_invalid_character;
constexpr int failure = codecvt_conversion_failure;
auto const stop = call_back_stop;
auto const lenient = call_back_default;
std::u16string const lone_high(1, char16_t(0xD800));

std::vector<from_ustring_case> const cases = {
    {"plain ASCII", "UTF-8", u"abc", "abc", stop, 0, ""},
    {"supplementary character takes four bytes", "UTF-8", u"\U0001F600", "\xF0\x9F\x98\x80", stop,
     0, ""},
    {"Latin-1 character", "ISO-8859-1", u"\u00E9", "\xE9", stop, 0, ""},
    {"unmappable replaced by the encoding's substitute", "ISO-8859-1", u"a\u3042", "a\x1A", lenient,
     0, ""},
    {"unmappable stops", "ISO-8859-1", u"a\u3042", "", stop, invalid, ""},
    {"lone surrogate inside the text stops", "UTF-8", lone_high + u"x", "", stop, invalid, ""},
    {"lone surrogate at the end is truncated", "UTF-8", u"x" + lone_high, "", stop, failure, ""},
    {"lone surrogate replaced", "UTF-8", lone_high + u"x", "\xEF\xBF\xBDx", lenient, 0, ""},
    {"invisible character passed over by default", "ISO-8859-1", u"a\u200Bb", "ab", lenient, 0, ""},
    {"invisible character stops like any other", "ISO-8859-1", u"a\u200Bb", "", stop, invalid, ""},
    {"invisible character is escaped", "ISO-8859-1", u"a\u200Bb", "a\\u200Bb",
     call_back_escape_java, 0, ""},
    {"caller's substitution", "ISO-8859-1", u"a\u3042", "a?", call_back_substitute, 0, "?"},
    {"escape in ICU form", "ISO-8859-1", u"\u3042", "%U3042", call_back_escape_icu, 0, ""},
    {"escape in Java form", "ISO-8859-1", u"\U0001F600", "\\uD83D\\uDE00", call_back_escape_java, 0,
     ""},
    {"escape in C form", "ISO-8859-1", u"\U0001F600", "\\U0001F600", call_back_escape_c, 0, ""},
    {"escape as decimal XML", "ISO-8859-1", u"\u3042", "&#12354;", call_back_escape_xml_dec, 0, ""},
    {"escape as hexadecimal XML", "ISO-8859-1", u"\u3042", "&#x3042;", call_back_escape_xml_hex, 0,
     ""},
    {"escape in Unicode form", "ISO-8859-1", u"\u3042", "{U+3042}", call_back_escape_unicode, 0,
     ""},
    {"escape in CSS2 form", "ISO-8859-1", u"\u3042", "\\3042 ", call_back_escape_css2, 0, ""},
    {"unnamed escape value uses ICU form", "ISO-8859-1", u"\u3042", "%U3042",
     static_cast<codecvt_call_back_mode>(0x300), 0, ""},
    {"table-based encoding", "Shift_JIS", u"\u3042\u65E5", "\x82\xA0\x93\xFA", stop, 0, ""},
    {"1024 units take the stack path", "UTF-8", repeat<std::u16string>(u"a", 1024),
     repeat<std::string>("a", 1024), stop, 0, ""},
    {"1025 units take the heap path", "UTF-8", repeat<std::u16string>(u"a", 1025),
     repeat<std::string>("a", 1025), stop, 0, ""},
    {"short text with a long result needs a second pass", "UTF-8",
     repeat<std::u16string>(u"\u65E5", 1000), repeat<std::string>("\xE6\x97\xA5", 1000), stop, 0,
     ""},
    {"40000 units exceed the first block of 32768", "UTF-8", repeat<std::u16string>(u"x", 40000),
     repeat<std::string>("x", 40000), stop, 0, ""},
    {"result beyond one UTF-8 target span", "UTF-8", repeat<std::u16string>(u"\u65E5", 50000),
     repeat<std::string>("\xE6\x97\xA5", 50000), stop, 0, ""},
    {"result beyond one double-byte target span", "Shift_JIS",
     repeat<std::u16string>(u"\u3042", 40000), repeat<std::string>("\x82\xA0", 40000), stop, 0, ""},
    {"escapes counted in the length", "US-ASCII", repeat<std::u16string>(u"\u00E9", 600),
     repeat<std::string>("&#233;", 600), call_back_escape_xml_dec, 0, ""},
    {"empty text", "UTF-8", u"", "", stop, 0, ""},
};

class from_ustring_cases : public ::testing::TestWithParam<from_ustring_case> {};

TEST_P(from_ustring_cases, whole_measured_and_buffered_agree) {
    from_ustring_case const& c = GetParam();
    SCOPED_TRACE(c.reason);
    codecvt_ustring_to_string const cvt(c.mode, c.encoding, c.substitution);
    check_conversion(cvt, c.text, c.expected, c.error);
    // A failed conversion leaves the converter ready for the next text.
    EXPECT_EQ(cvt.do_convert(u"ok", 2), "ok");
}

INSTANTIATE_TEST_SUITE_P(table, from_ustring_cases, ::testing::ValuesIn(cases));

}  // namespace
}  // namespace i18n
}  // namespace fl
