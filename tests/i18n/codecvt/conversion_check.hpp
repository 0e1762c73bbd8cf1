#ifndef OVI18N_TESTS_CODECVT_CONVERSION_CHECK_HPP
#define OVI18N_TESTS_CODECVT_CONVERSION_CHECK_HPP

#include <fl/i18n/codecvt/converter.hpp>

#include "i18n/codecvt/thrown_id.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

template <class S>
S repeat(S const& piece, std::size_t times) {
    S out;
    for (std::size_t i = 0; i < times; ++i)
        out += piece;
    return out;
}

// The whole, measuring and buffer forms must agree with expected, or all throw error; a short
// buffer reports the full length, writes nothing beyond its capacity and keeps the prefix that
// fits (cut inside a character, unless whole_characters is set: ICU's string functions stop
// before a character that does not fit).
template <class To, class From>
void check_conversion(fl::i18n::converter<To, From> const& cvt,
                      std::basic_string<From> const& source, std::basic_string<To> const& expected,
                      int error, bool whole_characters = false) {
    std::basic_string<To> result;
    std::size_t measured = 0;
    EXPECT_EQ(thrown_id([&] { result = cvt.do_convert(source.data(), source.size()); }), error);
    EXPECT_EQ(
        thrown_id([&] { measured = cvt.do_get_destination_size(source.data(), source.size()); }),
        error);
    if (error != 0) {
        return;
    }
    EXPECT_EQ(result, expected);
    EXPECT_EQ(measured, expected.size());
    std::size_t const capacity = expected.size() / 2;
    std::vector<To> buffer(capacity + 1, To('#'));
    EXPECT_EQ(cvt.do_convert(buffer.data(), capacity, source.data(), source.size()),
              expected.size());
    if (!whole_characters) {
        EXPECT_EQ(std::basic_string<To>(buffer.data(), capacity), expected.substr(0, capacity));
    }
    EXPECT_EQ(buffer[capacity], To('#'));
    EXPECT_EQ(cvt.do_convert(nullptr, 0, source.data(), source.size()), expected.size());
}

#endif
