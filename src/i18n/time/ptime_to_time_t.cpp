#include <fl/i18n/time/ptime_to_time_t.hpp>

#include <fl/i18n/time/date_time_exception.hpp>

#include "common/throw_exception.hpp"

#include <boost/date_time/gregorian/gregorian_types.hpp>
#include <boost/date_time/posix_time/posix_time_types.hpp>

#include <cstdint>

namespace fl {
namespace i18n {
namespace date_time {
namespace {

// What the infinities amount to once a duration's second count is cut to 32 bits; callers
// have long relied on these exact values.
constexpr std::time_t positive_infinity_seconds = 2077252342;
constexpr std::time_t negative_infinity_seconds = -2077252342;

constexpr std::int64_t microseconds_per_second = 1000000;

}  // namespace

std::time_t ptime_to_time_t(boost::posix_time::ptime const& t) {
    if (t.is_not_a_date_time()) {
        fl::detail::throw_exception(invalid_data_error());
    }
    if (t.is_pos_infinity()) {
        return positive_infinity_seconds;
    }
    if (t.is_neg_infinity()) {
        return negative_infinity_seconds;
    }
    static boost::posix_time::ptime const epoch(boost::gregorian::date(1970, 1, 1));
    std::int64_t const microseconds = (t - epoch).total_microseconds();
    // Integer division truncates toward zero, so half a second before the epoch is 0.
    std::int64_t const seconds = microseconds / microseconds_per_second;
    // The cut keeps the low 32 bits; the conversion to the signed type is modular here.
    auto const low_bits = static_cast<std::uint32_t>(static_cast<std::uint64_t>(seconds));
    return static_cast<std::time_t>(static_cast<std::int32_t>(low_bits));
}

}  // namespace date_time
}  // namespace i18n
}  // namespace fl
