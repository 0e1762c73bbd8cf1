#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>

#include "i18n/codecvt/conversion_check.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace {

struct to_ustring_case {
    char const* reason;
    char const* encoding;
    std::string bytes;
    std::u16string expected;
    codecvt_call_back_mode mode;
    int error;  // codecvt_excp_id, 0 for success
};

constexpr int invalid = codecvt_invalid_character;
constexpr int failure = codecvt_conversion_failure;
auto const stop = call_back_stop;
auto const lenient = call_back_default;

std::vector<to_ustring_case> const cases = {
    {"plain ASCII", "UTF-8", "abc", u"abc", stop, 0},
    {"two-byte character", "UTF-8", "caf\xC3\xA9", u"caf\u00E9", stop, 0},
    {"supplementary character becomes a pair", "UTF-8", "\xF0\x9F\x98\x80", u"\U0001F600", stop, 0},
    {"illegal byte replaced", "UTF-8",
     "a\xFF"
     "b",
     u"a\uFFFD"
     "b",
     lenient, 0},
    {"illegal byte stops", "UTF-8",
     "a\xFF"
     "b",
     u"", stop, invalid},
    {"encoded surrogate is illegal", "UTF-8", "\xED\xA0\x80", u"", stop, invalid},
    {"truncated sequence replaced", "UTF-8", "a\xE3\x81", u"a\uFFFD", lenient, 0},
    {"truncated sequence is a failure, not an invalid character", "UTF-8", "a\xE3\x81", u"", stop,
     failure},
    {"table-based encoding", "Shift_JIS", "\x82\xA0\x93\xFA", u"\u3042\u65E5", stop, 0},
    {"EUC-JP", "EUC-JP", "\xA4\xA2x", u"\u3042x", stop, 0},
    {"unassigned double byte stops", "Shift_JIS", "\x85\x40", u"", stop, invalid},
    {"alias of an encoding", "latin1", "\xE9", u"\u00E9", stop, 0},
    {"1024 bytes take the stack path", "UTF-8", repeat<std::string>("a", 1024),
     repeat<std::u16string>(u"a", 1024), stop, 0},
    {"1025 bytes take the heap path", "UTF-8", repeat<std::string>("a", 1025),
     repeat<std::u16string>(u"a", 1025), stop, 0},
    {"heap path whose result fits the first block", "UTF-8",
     repeat<std::string>("\xE6\x97\xA5", 2000), repeat<std::u16string>(u"\u65E5", 2000), stop, 0},
    {"32768 bytes fill the first block exactly", "UTF-8", repeat<std::string>("b", 32768),
     repeat<std::u16string>(u"b", 32768), stop, 0},
    {"40000 bytes need the exact second pass", "UTF-8", repeat<std::string>("c", 40000),
     repeat<std::u16string>(u"c", 40000), stop, 0},
    {"more than one target span of 65536 units", "ISO-8859-1", repeat<std::string>("d\xE9", 40000),
     repeat<std::u16string>(u"d\u00E9", 40000), stop, 0},
    {"bad byte far behind the first block", "UTF-8", repeat<std::string>("e", 40000) + "\xFF", u"",
     stop, invalid},
    {"empty text", "UTF-8", "", u"", stop, 0},
};

class to_ustring_cases : public ::testing::TestWithParam<to_ustring_case> {};

TEST_P(to_ustring_cases, whole_measured_and_buffered_agree) {
    to_ustring_case const& c = GetParam();
    SCOPED_TRACE(c.reason);
    codecvt_string_to_ustring const cvt(c.mode, c.encoding);
    check_conversion(cvt, c.bytes, c.expected, c.error);
    // A failed conversion leaves the converter ready for the next text.
    EXPECT_EQ(cvt.do_convert("ok", 2), u"ok");
}

INSTANTIATE_TEST_SUITE_P(table, to_ustring_cases, ::testing::ValuesIn(cases));

}  // namespace
}  // namespace i18n
}  // namespace fl
