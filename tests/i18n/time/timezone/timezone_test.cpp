#include <fl/i18n.hpp>

#include <gtest/gtest.h>
#include <boost/date_time/posix_time/posix_time.hpp>

#include <string>
#include <vector>

#include "support/run_together.hpp"

namespace {

using boost::gregorian::date;
using boost::posix_time::ptime;
using boost::posix_time::time_duration;
using fl::i18n::time_zone::from_utc;
using fl::i18n::time_zone::invalid_time_data;
using fl::i18n::time_zone::invalid_timezone_id;
using fl::i18n::time_zone::timezone;
using fl::i18n::time_zone::to_utc;

ptime at(int y, int m, int d, int hh, int mm, int ss, long micro = 0) {
    return ptime(date(y, m, d), time_duration(hh, mm, ss) + boost::posix_time::microseconds(micro));
}

// The test process runs with TZ=Asia/Tokyo.
TEST(Timezone, EmptyIdentifierIsTheSystemDefault) {
    timezone by_default(std::string("UTC"));
    by_default.create_default();
    EXPECT_EQ(timezone(fl::i18n::ustring()), by_default);
    EXPECT_EQ(timezone(std::string()), by_default);
    EXPECT_EQ(by_default.get_id(), u"Asia/Tokyo");
    EXPECT_NE(by_default, timezone(std::string("UTC")));
}

TEST(Timezone, RefusesIdentifiersItCannotUse) {
    EXPECT_THROW(timezone(std::string("Mars/Olympus_Mons")), invalid_timezone_id);
    EXPECT_THROW(timezone(fl::i18n::ustring(u"Mars/Olympus_Mons")), invalid_timezone_id);
    // The converter's own failure must not escape.
    EXPECT_THROW(timezone(std::string("Europe/Z\xC3\xBCrich")), invalid_timezone_id);
    // The identifier ends at its first NUL.
    EXPECT_EQ(timezone(fl::i18n::ustring(u"Asia/Tokyo\0junk", 15)).get_id(), u"Asia/Tokyo");
}

TEST(Timezone, CopiesAreEqualAndIndependent) {
    timezone berlin(std::string("Europe/Berlin"));
    timezone copy(berlin);
    EXPECT_EQ(copy, berlin);
    berlin = timezone(std::string("America/New_York"));
    EXPECT_EQ(copy.get_id(), u"Europe/Berlin");
    EXPECT_NE(copy, berlin);
}

struct instant_case {
    char const* zone;
    ptime utc;
    ptime local;
};

TEST(Timezone, ConvertsKnownInstantsBothWays) {
    instant_case const cases[] = {
        {"Europe/Berlin", at(2021, 3, 28, 0, 59, 59), at(2021, 3, 28, 1, 59, 59)},
        {"Europe/Berlin", at(2021, 3, 28, 1, 0, 0), at(2021, 3, 28, 3, 0, 0)},
        {"Europe/Berlin", at(2021, 10, 31, 1, 0, 0), at(2021, 10, 31, 2, 0, 0)},
        {"Europe/Berlin", at(2021, 7, 15, 12, 0, 0, 123456), at(2021, 7, 15, 14, 0, 0, 123456)},
        {"America/New_York", at(2021, 1, 15, 12, 0, 0), at(2021, 1, 15, 7, 0, 0)},
        {"America/New_York", at(2021, 3, 14, 7, 0, 0), at(2021, 3, 14, 3, 0, 0)},
        {"America/New_York", at(2021, 3, 14, 6, 59, 59), at(2021, 3, 14, 1, 59, 59)},
        {"Asia/Tokyo", at(2021, 7, 15, 20, 30, 0), at(2021, 7, 16, 5, 30, 0)},
        // Before 1970 the fraction comes back as a negative remainder of truncated seconds.
        {"Asia/Tokyo", at(1969, 12, 31, 23, 59, 59, 250000), at(1970, 1, 1, 8, 59, 59, 250000)},
        {"UTC", at(1960, 6, 1, 10, 0, 0, 1), at(1960, 6, 1, 10, 0, 0, 1)},
    };
    for (auto const& c : cases) {
        timezone const zone{std::string(c.zone)};
        EXPECT_EQ(from_utc(c.utc, zone), c.local) << c.zone << " " << c.utc;
        EXPECT_EQ(to_utc(c.local, zone), c.utc) << c.zone << " " << c.local;
    }
}

TEST(Timezone, SecondsAreThirtyTwoBits) {
    timezone const utc(std::string("UTC"));
    EXPECT_EQ(from_utc(at(2038, 1, 19, 3, 14, 7), utc), at(2038, 1, 19, 3, 14, 7));
    EXPECT_THROW(from_utc(at(2038, 1, 19, 3, 14, 8), utc), invalid_time_data);
    EXPECT_THROW(to_utc(at(2050, 1, 1, 0, 0, 0), utc), invalid_time_data);
}

TEST(Timezone, SpecialValuesGiveOrdinaryTimes) {
    timezone const utc(std::string("UTC"));
    EXPECT_EQ(from_utc(ptime(boost::posix_time::not_a_date_time), utc).date().year(), 2035);
    EXPECT_EQ(from_utc(ptime(boost::posix_time::pos_infin), utc).date().year(), 2035);
    EXPECT_EQ(from_utc(ptime(boost::posix_time::neg_infin), utc).date().year(), 1904);
}

TEST(Timezone, SeparateObjectsConvertInParallel) {
    std::vector<int> failures(4, 0);
    run_together(4, [&failures](int i) {
        timezone const zone(std::string(i % 2 ? "Europe/Berlin" : "America/New_York"));
        ptime const utc = at(2021, 7, 15, 12, 0, 0, 42);
        ptime const local = at(2021, 7, 15, i % 2 ? 14 : 8, 0, 0, 42);
        for (int n = 0; n < 500; ++n) {
            failures[i] += from_utc(utc, zone) != local || to_utc(local, zone) != utc;
        }
    });
    EXPECT_EQ(failures, std::vector<int>(4, 0));
}

}  // namespace
