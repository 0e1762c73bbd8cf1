#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>

#include "i18n/codecvt/conversion_check.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fl::i18n {
namespace {

constexpr int invalid = codecvt_invalid_character;
constexpr int failure = codecvt_conversion_failure;
auto const stop = call_back_stop;
auto const lenient = call_back_default;

std::string bytes(char const* piece, std::size_t times) {
    return repeat<std::string>(piece, times);
}
std::u16string units(char16_t const* piece, std::size_t times) {
    return repeat<std::u16string>(piece, times);
}

struct to_ustring_case {
    char const* reason;
    char const* encoding;
    std::string bytes;
    std::u16string expected;
    codecvt_call_back_mode mode;
    int error = 0;  // codecvt_excp_id
};

std::vector<to_ustring_case> const to_cases = {
    {"plain ASCII", "UTF-8", "abc", u"abc", stop},
    {"two-byte character", "UTF-8", "caf\xC3\xA9", u"caf\u00E9", stop},
    {"supplementary character becomes a pair", "UTF-8", "\xF0\x9F\x98\x80", u"\U0001F600", stop},
    {"illegal byte replaced", "UTF-8", "a\xFFz", u"a\uFFFDz", lenient},
    {"illegal byte stops", "UTF-8", "a\xFFz", u"", stop, invalid},
    {"encoded surrogate is illegal", "UTF-8", "\xED\xA0\x80", u"", stop, invalid},
    {"truncated sequence replaced", "UTF-8", "a\xE3\x81", u"a\uFFFD", lenient},
    {"truncated sequence is a failure, not an invalid character", "UTF-8", "a\xE3\x81", u"", stop,
     failure},
    {"table-based encoding", "Shift_JIS", "\x82\xA0\x93\xFA", u"\u3042\u65E5", stop},
    {"unassigned double byte stops", "Shift_JIS", "\x85\x40", u"", stop, invalid},
    {"alias of an encoding", "latin1", "\xE9", u"\u00E9", stop},
    {"1024 bytes take the stack path", "UTF-8", bytes("a", 1024), units(u"a", 1024), stop},
    {"1025 bytes take the heap path", "UTF-8", bytes("a", 1025), units(u"a", 1025), stop},
    {"heap path whose result fits the first block", "UTF-8", bytes("\xE6\x97\xA5", 2000),
     units(u"\u65E5", 2000), stop},
    {"32768 bytes fill the first block exactly", "UTF-8", bytes("b", 32768), units(u"b", 32768),
     stop},
    {"40000 bytes need the exact second pass", "UTF-8", bytes("c", 40000), units(u"c", 40000),
     stop},
    {"more than one target span of 65536 units", "ISO-8859-1", bytes("d\xE9", 40000),
     units(u"d\u00E9", 40000), stop},
    {"bad byte far behind the first block", "UTF-8", bytes("e", 40000) + "\xFF", u"", stop,
     invalid},
    {"empty text", "UTF-8", "", u"", stop},
};

TEST(to_ustring_cases, whole_measured_and_buffered_agree) {
    for (to_ustring_case const& c : to_cases) {
        SCOPED_TRACE(c.reason);
        codecvt_string_to_ustring const cvt(c.mode, c.encoding);
        check_conversion(cvt, c.bytes, c.expected, c.error);
        // A failed conversion leaves the converter ready for the next text.
        EXPECT_EQ(cvt.do_convert("ok", 2), u"ok");
    }
}

struct from_ustring_case {
    char const* reason;
    char const* encoding;
    std::u16string text;
    std::string expected;
    codecvt_call_back_mode mode;
    int error = 0;                  // codecvt_excp_id
    std::string substitution = "";  // of call_back_substitute
};

std::u16string const lone_high(1, char16_t(0xD800));

std::vector<from_ustring_case> const from_cases = {
    {"plain ASCII", "UTF-8", u"abc", "abc", stop},
    {"supplementary character takes four bytes", "UTF-8", u"\U0001F600", "\xF0\x9F\x98\x80", stop},
    {"Latin-1 character", "ISO-8859-1", u"\u00E9", "\xE9", stop},
    {"unmappable replaced by the encoding's substitute", "ISO-8859-1", u"a\u3042", "a\x1A",
     lenient},
    {"lone surrogate inside the text stops", "UTF-8", lone_high + u"x", "", stop, invalid},
    {"lone surrogate at the end is truncated", "UTF-8", u"x" + lone_high, "", stop, failure},
    {"lone surrogate replaced", "UTF-8", lone_high + u"x", "\xEF\xBF\xBDx", lenient},
    {"invisible character passed over by default", "ISO-8859-1", u"a\u200Bb", "ab", lenient},
    {"invisible character stops like any other", "ISO-8859-1", u"a\u200Bb", "", stop, invalid},
    {"invisible character is escaped", "ISO-8859-1", u"a\u200Bb", "a\\u200Bb",
     call_back_escape_java},
    {"caller's substitution", "ISO-8859-1", u"a\u3042", "a?", call_back_substitute, 0, "?"},
    {"escape in ICU form", "ISO-8859-1", u"\u3042", "%U3042", call_back_escape_icu},
    {"escape in Java form", "ISO-8859-1", u"\U0001F600", "\\uD83D\\uDE00", call_back_escape_java},
    {"escape in C form", "ISO-8859-1", u"\U0001F600", "\\U0001F600", call_back_escape_c},
    {"escape as decimal XML", "ISO-8859-1", u"\u3042", "&#12354;", call_back_escape_xml_dec},
    {"escape in Unicode form", "ISO-8859-1", u"\u3042", "{U+3042}", call_back_escape_unicode},
    {"escape in CSS2 form", "ISO-8859-1", u"\u3042", "\\3042 ", call_back_escape_css2},
    {"table-based encoding", "Shift_JIS", u"\u3042\u65E5", "\x82\xA0\x93\xFA", stop},
    {"1024 units take the stack path", "UTF-8", units(u"a", 1024), bytes("a", 1024), stop},
    {"1025 units take the heap path", "UTF-8", units(u"a", 1025), bytes("a", 1025), stop},
    {"short text with a long result needs a second pass", "UTF-8", units(u"\u65E5", 1000),
     bytes("\xE6\x97\xA5", 1000), stop},
    {"40000 units exceed the first block of 32768", "UTF-8", units(u"x", 40000), bytes("x", 40000),
     stop},
    {"result beyond one UTF-8 target span", "UTF-8", units(u"\u65E5", 50000),
     bytes("\xE6\x97\xA5", 50000), stop},
    {"result beyond one double-byte target span", "Shift_JIS", units(u"\u3042", 40000),
     bytes("\x82\xA0", 40000), stop},
    {"escapes counted in the length", "US-ASCII", units(u"\u00E9", 600), bytes("&#233;", 600),
     call_back_escape_xml_dec},
    {"empty text", "UTF-8", u"", "", stop},
};

TEST(from_ustring_cases, whole_measured_and_buffered_agree) {
    for (from_ustring_case const& c : from_cases) {
        SCOPED_TRACE(c.reason);
        codecvt_ustring_to_string const cvt(c.mode, c.encoding, c.substitution);
        check_conversion(cvt, c.text, c.expected, c.error);
        // A failed conversion leaves the converter ready for the next text.
        EXPECT_EQ(cvt.do_convert(u"ok", 2), "ok");
    }
}

}  // namespace
}  // namespace fl::i18n
