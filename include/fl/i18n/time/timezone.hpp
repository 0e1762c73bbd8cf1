#ifndef FL_I18N_TIME_TIMEZONE_HPP
#define FL_I18N_TIME_TIMEZONE_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/any.hpp>
#include <boost/date_time/posix_time/ptime.hpp>

#include <string>

namespace fl {
namespace i18n {
namespace time_zone {

class timezone;

// Local time in the zone to UTC, and back. Seconds are held in 32 bits: a time from
// 2038-01-19 03:14:08 UTC on throws invalid_time_data. The fraction of a second is kept. Special
// values are not preserved: they give ordinary times.
FL_I18N_API boost::posix_time::ptime to_utc(boost::posix_time::ptime const& t,
                                            timezone const& zone);
FL_I18N_API boost::posix_time::ptime from_utc(boost::posix_time::ptime const& t,
                                              timezone const& zone);

// A named time zone. Construction refuses identifiers the calendar engine doesn't know (throws
// invalid_timezone_id), so an object in hand is always a usable zone. Each object owns its own
// engine zone, so objects may be used from different threads; one object may be read from
// several.
class FL_I18N_API timezone {
public:
    // An empty identifier means the system's default zone.
    explicit timezone(ustring const& id);
    // The identifier must be ASCII; any other byte gives invalid_timezone_id.
    explicit timezone(std::string const& id);
    // A copy finds its zone again by identifier and is not validated a second time.
    timezone(timezone const& other);
    timezone& operator=(timezone const& other);
    ~timezone();

    // Makes this object the system's default zone; invalid_timezone_id when the engine doesn't
    // know the system's zone.
    void create_default();

    ustring get_id() const;

    bool operator==(timezone const& other) const;
    bool operator!=(timezone const& other) const { return !(*this == other); }

private:
    friend boost::posix_time::ptime to_utc(boost::posix_time::ptime const& t, timezone const& zone);
    friend boost::posix_time::ptime from_utc(boost::posix_time::ptime const& t,
                                             timezone const& zone);

    void create(ustring const& id);

    boost::any zone_;
    ustring id_;
    bool ignore_dst_;
};

}  // namespace time_zone
}  // namespace i18n
}  // namespace fl

#endif
