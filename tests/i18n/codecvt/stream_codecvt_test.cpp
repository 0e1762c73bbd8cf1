#include <fl/i18n/codecvt/stream_codecvt.hpp>
#include <fl/i18n/codecvt/string_conversion.hpp>

#include "i18n/codecvt/thrown_id.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace fl::i18n {
namespace {

// Feeds source in pieces whose lengths come from next_piece, with a small target so that the
// overflow road is taken too; flushes at the end. Pieces of one byte make every character wait
// for its last byte.
template <class To, class From, class Pieces>
std::basic_string<To> feed(stream_converter<To, From> const& cvt,
                           std::basic_string<From> const& source, Pieces next_piece) {
    std::basic_string<To> out;
    To target[7];
    From const* from = source.data();
    From const* const end = from + source.size();
    bool last = false;
    while (!last) {
        From const* piece_end = std::min(end, from + next_piece());
        last = piece_end == end;
        bool more = true;
        while (more) {
            To* to = target;
            more = cvt.do_convert(&to, target + 7, &from, piece_end, last);
            out.append(target, to);
        }
    }
    return out;
}

struct stream_case {
    char const* encoding;
    std::string bytes;
    ustring text;
};

std::vector<stream_case> const stream_cases = {
    {"UTF-8", "a\xE3\x81\x82\xF0\x9F\x98\x80z\xC3\xA9", u"a\u3042\U0001F600z\u00E9"},
    {"Shift_JIS", "x\x82\xA0\x93\xFA\x96\x7Bq", u"x\u3042\u65E5\u672Cq"},
    {"EUC-JP", "\xA4\xA2\x8E\xB1m\x8F\xB0\xA1", u"\u3042\uFF71m\u4E02"},
};

TEST(stream_codecvt, pieces_of_any_size_equal_the_whole) {
    std::mt19937 random(20240611);
    for (stream_case const& c : stream_cases) {
        SCOPED_TRACE(c.encoding);
        stream_codecvt_string_to_ustring const in(c.encoding, false);
        stream_codecvt_ustring_to_string const out(c.encoding, false);
        EXPECT_EQ(feed(in, c.bytes, [] { return 1; }), c.text);
        EXPECT_EQ(feed(out, c.text, [] { return 1; }), c.bytes);
        for (int round = 0; round < 50; ++round) {
            std::uniform_int_distribution<int> piece(0, 5);
            EXPECT_EQ(feed(in, c.bytes, [&] { return piece(random); }), c.text);
            EXPECT_EQ(feed(out, c.text, [&] { return piece(random); }), c.bytes);
        }
    }
}

TEST(stream_codecvt, flushing_a_cut_character_fails_and_resets) {
    stream_codecvt_string_to_ustring const in("UTF-8", false);
    char const bytes[] = "\xE3\x81";
    char16_t target[4];
    char16_t* to = target;
    char const* from = bytes;
    EXPECT_EQ(thrown_id([&] { in.do_convert(&to, target + 4, &from, bytes + 2, true); }),
              codecvt_conversion_failure);
    EXPECT_EQ(feed(in, std::string("ok"), [] { return 2; }), u"ok");
}

TEST(stream_codecvt, strict_stream_refuses_unmappable_then_recovers) {
    stream_codecvt_ustring_to_string const strict("ISO-8859-1", false);
    stream_codecvt_ustring_to_string const lenient("ISO-8859-1", true);
    ustring const bad = u"a\u3042";
    EXPECT_EQ(thrown_id([&] { feed(strict, bad, [] { return 2; }); }), codecvt_invalid_character);
    EXPECT_EQ(feed(strict, ustring(u"\u00E9"), [] { return 1; }), "\xE9");
    EXPECT_EQ(feed(lenient, bad, [] { return 2; }), "a\x1A");
}

TEST(stream_codecvt, max_char_size) {
    EXPECT_EQ(stream_codecvt_ustring_to_string("UTF-8", true).do_max_char_size(), 4);
    EXPECT_EQ(stream_codecvt_ustring_to_string("ISO-8859-1", true).do_max_char_size(), 1);
    EXPECT_EQ(stream_codecvt_string_to_ustring("UTF-8", true).do_max_char_size(), 2);
    EXPECT_EQ(stream_codecvt_string_to_ustring("ISO-8859-1", true).do_max_char_size(), 2);
    EXPECT_EQ(thrown_id([] { stream_codecvt_string_to_ustring("no-such", true); }),
              codecvt_invalid_encoding_name);
}

}  // namespace
}  // namespace fl::i18n
