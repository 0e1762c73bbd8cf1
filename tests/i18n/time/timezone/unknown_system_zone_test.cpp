#include <fl/i18n.hpp>

#include <gtest/gtest.h>

namespace {

using fl::i18n::time_zone::invalid_timezone_id;
using fl::i18n::time_zone::timezone;

// The process runs with a TZ that names no zone: that is an error, not a quiet UTC.
TEST(UnknownSystemZone, IsRefused) {
    EXPECT_THROW(timezone{fl::i18n::ustring()}, invalid_timezone_id);
    timezone zone(std::string("UTC"));
    EXPECT_THROW(zone.create_default(), invalid_timezone_id);
}

}  // namespace
