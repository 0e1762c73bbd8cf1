#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/ustring.hpp>

#include "i18n/codecvt/thrown_id.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fl::i18n {
namespace {

auto mode(unsigned value) {
    return static_cast<codecvt_call_back_mode>(value);
}

struct from_mode_change {
    char const* reason;
    unsigned before;
    unsigned requested;
    std::string substitution;
    int error;
    unsigned after;      // get_call_back_mode afterwards
    char const* output;  // of u"a\u3042" through ISO-8859-1 afterwards; null: it throws
};

std::vector<from_mode_change> const from_changes = {
    {"stop", 0, 1, "", 0, 1, nullptr},
    {"back to default restores substitution", 1, 0, "", 0, 0, "a\x1A"},
    {"reserved value refused after a restore", 1, 0x20, "", codecvt_non_supported_mode, 0, "a\x1A"},
    {"unknown value refused", 0x100, 2, "", codecvt_invalid_argument, 0, "a\x1A"},
    {"escape replaces stop", 1, 0x1000, "", 0, 0x1000, "a&#x3042;"},
    {"escape family value kept as given", 0, 0x4100, "", 0, 0x4100, "a%U3042"},
    {"stop replaces escape", 0x800, 1, "", 0, 1, nullptr},
    {"substitution keeps the mode at default", 0, 0x10, "*", 0, 0, "a*"},
    {"substitution after stop", 1, 0x10, "*", 0, 0, "a*"},
    {"substitution needs bytes", 0, 0x10, "", codecvt_invalid_argument, 0, "a\x1A"},
    {"substitution beyond ICU's 8-bit length", 0, 0x10, std::string(128, '?'),
     codecvt_size_too_large, 0, "a\x1A"},
    {"substitution of 127 bytes reaches ICU, which refuses it", 0, 0x10, std::string(127, '?'),
     codecvt_call_back_setting_failure, 0, "a\x1A"},
};

TEST(from_mode_changes, leave_the_converter_in_the_stated_mode) {
    for (from_mode_change const& c : from_changes) {
        SCOPED_TRACE(c.reason);
        codecvt_ustring_to_string cvt(mode(c.before), "ISO-8859-1");
        EXPECT_EQ(thrown_id([&] { cvt.change_call_back(mode(c.requested), c.substitution); }),
                  c.error);
        EXPECT_EQ(cvt.get_call_back_mode(), mode(c.after));
        ustring const text = u"a\u3042";
        if (c.output == nullptr) {
            EXPECT_EQ(thrown_id([&] { cvt.do_convert(text.data(), text.size()); }),
                      codecvt_invalid_character);
        } else {
            EXPECT_EQ(cvt.do_convert(text.data(), text.size()), c.output);
        }
    }
}

struct to_mode_change {
    char const* reason;
    unsigned before;
    unsigned requested;
    int error;
    unsigned after;
};

std::vector<to_mode_change> const to_changes = {
    {"stop", 0, 1, 0, 1},
    {"back to default", 1, 0, 0, 0},
    {"no substitution towards Unicode", 1, 0x10, codecvt_non_supported_mode, 0},
    {"reserved", 0, 0x20, codecvt_non_supported_mode, 0},
    {"no escapes towards Unicode", 1, 0x200, codecvt_non_supported_mode, 0},
    {"unknown value", 1, 4, codecvt_invalid_argument, 0},
};

TEST(to_mode_changes, leave_the_converter_in_the_stated_mode) {
    for (to_mode_change const& c : to_changes) {
        SCOPED_TRACE(c.reason);
        codecvt_string_to_ustring cvt(mode(c.before), "UTF-8");
        EXPECT_EQ(thrown_id([&] { cvt.change_call_back(mode(c.requested)); }), c.error);
        EXPECT_EQ(cvt.get_call_back_mode(), mode(c.after));
        int const expected = c.after == call_back_stop ? codecvt_invalid_character : 0;
        EXPECT_EQ(thrown_id([&] { cvt.do_convert("a\xFF", 2); }), expected);
    }
}

TEST(call_back_mode, reset_keeps_substitution_bytes_and_undoes_stop) {
    codecvt_ustring_to_string cvt(call_back_substitute, "ISO-8859-1", "!");
    cvt.change_call_back(call_back_stop);
    cvt.reset_call_back();
    EXPECT_EQ(cvt.get_call_back_mode(), call_back_default);
    EXPECT_EQ(cvt.do_convert(u"\u3042", 1), "!");
}

TEST(call_back_mode, constructor_refusing_a_mode_throws_whole) {
    EXPECT_EQ(thrown_id([] { codecvt_string_to_ustring(call_back_substitute, "UTF-8"); }),
              codecvt_non_supported_mode);
    EXPECT_EQ(thrown_id([] { codecvt_ustring_to_string(call_back_substitute, "UTF-8", ""); }),
              codecvt_invalid_argument);
}

TEST(encoding_name, unknown_name_is_refused_and_kept) {
    auto const expect_refused = [](auto const& make) {
        try {
            make();
            ADD_FAILURE() << "no exception";
        } catch (CvtInvalidEncodingName const& e) {
            EXPECT_EQ(e.get_encoding_name(), "no-such-encoding");
        }
    };
    for (bool lenient : {true, false}) {
        expect_refused([&] { codecvt_string_to_ustring("no-such-encoding", lenient); });
        expect_refused([&] { codecvt_ustring_to_string("no-such-encoding", lenient); });
    }
    expect_refused([] { codecvt_ustring_to_string(call_back_stop, "no-such-encoding", ""); });
}

TEST(encoding_name, empty_name_means_the_global_encoding) {
    // Before start-up the global locale's encoding is US-ASCII.
    EXPECT_EQ(codecvt_ustring_to_string("", true).do_convert(u"a\u00E9", 2), "a\x1A");
    EXPECT_EQ(codecvt_string_to_ustring("", true).do_convert("a\xE9", 2), u"a\uFFFD");
}

}  // namespace
}  // namespace fl::i18n
