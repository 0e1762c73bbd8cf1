#include <fl/i18n/time.hpp>

#include <gtest/gtest.h>

#include <boost/date_time/posix_time/posix_time.hpp>
#include "support/expect_thrown.hpp"

#include <ctime>

namespace {

using boost::gregorian::date;
using boost::posix_time::ptime;
using boost::posix_time::time_duration;
using fl::i18n::date_time::ptime_to_time_t;

struct time_case {
    char const* reason;
    ptime input;
    std::time_t expected;
};

ptime at(int y, int m, int d, int hh, int mm, int ss, long micro = 0) {
    return ptime(date(y, m, d), time_duration(hh, mm, ss) + boost::posix_time::microseconds(micro));
}

TEST(PtimeToTimeT, ConvertsAndCutsToThirtyTwoBits) {
    time_case const cases[] = {
        {"the epoch", at(1970, 1, 1, 0, 0, 0), 0},
        {"half a second before the epoch truncates toward zero",
         at(1969, 12, 31, 23, 59, 59, 500000), 0},
        {"one and a half seconds before the epoch", at(1969, 12, 31, 23, 59, 58, 500000), -1},
        {"the fraction is dropped", at(1970, 1, 1, 0, 0, 1, 999999), 1},
        {"last second of 32-bit time", at(2038, 1, 19, 3, 14, 7), 2147483647},
        {"one second later wraps", at(2038, 1, 19, 3, 14, 8), -2147483647 - 1},
        {"far past wraps too", at(1901, 12, 13, 20, 45, 51), 2147483647},
        {"an ordinary date", at(2001, 9, 9, 1, 46, 40), 1000000000},
        {"positive infinity", ptime(boost::posix_time::pos_infin), 2077252342},
        {"negative infinity", ptime(boost::posix_time::neg_infin), -2077252342},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(ptime_to_time_t(c.input), c.expected) << c.reason;
    }
}

TEST(PtimeToTimeT, NotADateTimeIsInvalidData) {
    expect_thrown<fl::i18n::date_time::invalid_data_error>(
        [] { ptime_to_time_t(ptime(boost::posix_time::not_a_date_time)); },
        [](auto const& e) {
            EXPECT_STREQ(e.what(), "fl:i18n:date_time:invalid_data_error");
            EXPECT_EQ(e.id(), 1);
        });
}

}  // namespace
