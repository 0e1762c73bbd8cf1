#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/codecvt/codecvt_modified_utf8.hpp>
#include <fl/i18n/codecvt/codecvt_wide.hpp>

#include "i18n/codecvt/conversion_check.hpp"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace fl::i18n {
namespace {

constexpr int invalid = codecvt_invalid_character;

struct ascii_case {
    char const* reason;
    bool lenient;
    std::string bytes;
    std::u16string units;  // what the bytes become
    std::u16string text;   // what becomes back_bytes
    std::string back_bytes;
    int error;
};

std::vector<ascii_case> const ascii_cases = {
    {"plain text both ways", false, "abc", u"abc", u"abc", "abc", 0},
    {"bad characters replaced asymmetrically", true, "a\xE9", u"a\uFFFD", u"a\u00E9", "a\xFF", 0},
    {"bad characters refused", false, "a\xE9", u"", u"a\u00E9", "", invalid},
    {"0x7F is still ASCII, 0x80 is not", false, "\x7F\x80", u"", u"\u007F\u0080", "", invalid},
};

TEST(ascii, cases_both_directions) {
    for (ascii_case const& c : ascii_cases) {
        SCOPED_TRACE(c.reason);
        codecvt_ascii_to_ustring const in(c.lenient);
        codecvt_ustring_to_ascii const out(c.lenient);
        std::u16string units;
        std::string bytes;
        EXPECT_EQ(thrown_id([&] { units = in.do_convert(c.bytes.data(), c.bytes.size()); }),
                  c.error);
        EXPECT_EQ(thrown_id([&] { bytes = out.do_convert(c.text.data(), c.text.size()); }),
                  c.error);
        EXPECT_EQ(thrown_id([&] { in.do_get_destination_size(c.bytes.data(), c.bytes.size()); }),
                  c.error);
        if (c.error == 0) {
            EXPECT_EQ(units, c.units);
            EXPECT_EQ(bytes, c.back_bytes);
        }
    }
}

TEST(ascii, buffer_forms_return_the_stored_count) {
    char16_t wide[2] = {};
    EXPECT_EQ(codecvt_ascii_to_ustring().do_convert(wide, 2, "abcd", 4), 2u);
    EXPECT_EQ(std::u16string(wide, 2), u"ab");
    char narrow[3] = {};
    EXPECT_EQ(codecvt_ustring_to_ascii().do_convert(narrow, 3, u"abcd", 4), 3u);
    EXPECT_EQ(codecvt_ustring_to_ascii().do_convert(nullptr, 3, u"abcd", 4), 0u);
    EXPECT_EQ(codecvt_ascii_to_ustring().do_convert(wide, 2, nullptr, 4), 0u);
    EXPECT_EQ(codecvt_ascii_to_ustring(true).do_get_destination_size("\xFF", 1), 1u);
}

TEST(ascii, strict_buffer_form_walks_backwards) {
    char16_t wide[5] = {u'#', u'#', u'#', u'#', u'#'};
    EXPECT_EQ(
        thrown_id([&] { codecvt_ascii_to_ustring(false).do_convert(wide, 5, "ab\xE9yz", 5); }),
        invalid);
    EXPECT_EQ(std::u16string(wide, 5), u"###yz");
}

TEST(ascii, widening_in_place_over_its_own_buffer) {
    char16_t storage[4] = {};
    char* const bytes = reinterpret_cast<char*>(storage);
    std::char_traits<char>::copy(bytes, "wxyz", 4);
    EXPECT_EQ(codecvt_ascii_to_ustring().do_convert(storage, 4, bytes, 4), 4u);
    EXPECT_EQ(std::u16string(storage, 4), u"wxyz");
}

struct modified_utf8_case {
    char const* reason;
    std::u16string text;
    std::string bytes;
};

std::vector<modified_utf8_case> const modified_utf8_cases = {
    {"NUL takes two bytes", std::u16string(1, u'\0') + u"z", std::string("\xC0\x80z", 3)},
    {"each surrogate encoded by itself", u"\U0001F600", "\xED\xA0\xBD\xED\xB8\x80"},
    {"BMP character as in UTF-8", u"\u00E9\u65E5", "\xC3\xA9\xE6\x97\xA5"},
    {"long text through the heap estimate", std::u16string(3000, u'\u00E9'),
     repeat<std::string>("\xC3\xA9", 3000)},
    {"empty", u"", ""},
};

TEST(modified_utf8, cases_round_trip) {
    for (modified_utf8_case const& c : modified_utf8_cases) {
        SCOPED_TRACE(c.reason);
        check_conversion(codecvt_ustring_to_modified_utf8(), c.text, c.bytes, 0, true);
        check_conversion(codecvt_modified_utf8_to_ustring(), c.bytes, c.text, 0, true);
    }
}

TEST(modified_utf8, illegal_bytes_are_replaced_and_sizes_checked) {
    codecvt_modified_utf8_to_ustring const in;
    EXPECT_EQ(in.do_convert("a\xFFz", 3), u"a\uFFFDz");
    char16_t unit;
    EXPECT_EQ(thrown_id([&] { in.do_convert(&unit, 0x80000000u, "a", 1); }),
              codecvt_size_too_large);
    EXPECT_EQ(thrown_id([&] { in.do_get_destination_size("a", 0x80000000u); }),
              codecvt_size_too_large);
}

// The text ends inside a four-byte sequence right before an unreadable page: nothing may read
// behind it, and every form gives the measured length.
TEST(modified_utf8, text_ending_in_a_truncated_sequence_is_read_only_within_its_bounds) {
    std::string const bytes("\xF0\x9F\x98\x80\xF0\x9F\x98\xF0\x9F\x98\x80\xF0\x9F\x98\xBE");
    long const page = sysconf(_SC_PAGESIZE);
    auto* const pages = static_cast<char*>(
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(pages, MAP_FAILED);
    ASSERT_EQ(mprotect(pages + page, page, PROT_NONE), 0);
    char* const source = pages + page - bytes.size();
    bytes.copy(source, bytes.size());

    codecvt_modified_utf8_to_ustring const in;
    std::u16string const expected(4, u'\uFFFD');
    EXPECT_EQ(in.do_get_destination_size(source, bytes.size()), 4u);
    EXPECT_EQ(in.do_convert(source, bytes.size()), expected);
    char16_t units[8];
    EXPECT_EQ(in.do_convert(units, 8, source, bytes.size()), 4u);
    EXPECT_EQ(std::u16string(units, 4), expected);
    EXPECT_EQ(in.do_convert(bytes.data(), bytes.size()), expected);  // no U+0000 from behind
    munmap(pages, 2 * page);
}

struct wide_case {
    char const* reason;
    std::wstring values;
    std::u16string units;
    std::wstring back;  // units converted back
};

std::vector<wide_case> const wide_cases = {
    {"BMP values copied", L"a\u00E9", u"a\u00E9", L"a\u00E9"},
    {"supplementary value becomes a pair", L"\U0001F600x", u"\U0001F600x", L"\U0001F600x"},
    {"lone surrogate value copied, returns as U+FFFD", std::wstring(1, wchar_t(0xDC00)),
     std::u16string(1, char16_t(0xDC00)), L"\uFFFD"},
    {"value beyond Unicode gives a pair without complaint", std::wstring(1, wchar_t(0x110000)),
     std::u16string({char16_t(0xDC00), char16_t(0xDC00)}),
     std::wstring(1, wchar_t(0xFFFD)) + std::wstring(1, wchar_t(0xFFFD))},
    {"long text is measured first", std::wstring(1500, L'\U00010000'),
     repeat<std::u16string>(u"\U00010000", 1500), std::wstring(1500, L'\U00010000')},
};

TEST(wide, cases_both_directions) {
    for (wide_case const& c : wide_cases) {
        SCOPED_TRACE(c.reason);
        check_conversion(codecvt_wstring_to_ustring(), c.values, c.units, 0);
        check_conversion(codecvt_ustring_to_wstring(), c.units, c.back, 0);
    }
}

TEST(wide, pair_cut_by_the_buffer_end_keeps_its_high_unit_uncounted) {
    char16_t buffer[2] = {u'#', u'#'};
    wchar_t const value = 0x1F600;
    EXPECT_EQ(codecvt_wstring_to_ustring().do_convert(buffer, 1, &value, 1), 2u);
    EXPECT_EQ(buffer[0], char16_t(0xD83D));
    EXPECT_EQ(buffer[1], u'#');
    wchar_t const values[] = {L'a', 0x1F600, L'b'};
    EXPECT_EQ(codecvt_wstring_to_ustring().do_convert(buffer, 2, values, 3), 4u);
}

}  // namespace
}  // namespace fl::i18n
