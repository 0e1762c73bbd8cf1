#ifndef FL_I18N_TIME_PTIME_TO_TIME_T_HPP
#define FL_I18N_TIME_PTIME_TO_TIME_T_HPP

#include <fl/i18n/export.hpp>

#include <boost/date_time/posix_time/ptime.hpp>

#include <ctime>

namespace fl {
namespace i18n {
namespace date_time {

// Seconds since 1970-01-01 00:00:00 UTC, truncated toward zero and cut to 32 bits, so times
// from 2038-01-19 03:14:08 on wrap to negative values as the file time interfaces always did.
// The infinities give fixed values; not-a-date-time throws invalid_data_error.
FL_I18N_API std::time_t ptime_to_time_t(boost::posix_time::ptime const& t);

}  // namespace date_time
}  // namespace i18n
}  // namespace fl

#endif
