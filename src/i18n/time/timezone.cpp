#include <fl/i18n/time/timezone.hpp>

#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/time/timezone_exception.hpp>

#include "common/throw_exception.hpp"
#include "common/visible_call_once.hpp"

#include <unicode/timezone.h>
#include <unicode/unistr.h>
#include <boost/date_time/gregorian/gregorian_types.hpp>
#include <boost/date_time/posix_time/posix_time_types.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/thread/once.hpp>

#include <cstdint>

namespace fl {
namespace i18n {
namespace time_zone {
namespace {

using icu_zone_ptr = boost::shared_ptr<icu::TimeZone const>;
using boost::posix_time::ptime;

constexpr std::int64_t microseconds_per_second = 1000000;

icu::UnicodeString to_icu(ustring const& id) {
    // The identifier ends at its first NUL, as a C string would.
    ustring::size_type const end = id.find(u'\0');
    ustring::size_type const length = end == ustring::npos ? id.size() : end;
    return icu::UnicodeString(id.data(), static_cast<std::int32_t>(length));
}

ustring from_icu(icu::UnicodeString const& text) {
    // Through the terminated buffer, so the text ends at its first NUL like the input did.
    icu::UnicodeString copy(text);
    return ustring(copy.getTerminatedBuffer());
}

icu_zone_ptr const& icu_zone(boost::any const& zone) {
    return boost::any_cast<icu_zone_ptr const&>(zone);
}

// createTimeZone never fails: an identifier it doesn't know gives the unknown zone.
void validate(boost::any const& zone) {
    if (*icu_zone(zone) == icu::TimeZone::getUnknown()) {
        fl::detail::throw_exception(invalid_timezone_id());
    }
}

codecvt_ascii_to_ustring const& ascii_converter() {
    static boost::once_flag once = BOOST_ONCE_INIT;
    static codecvt_ascii_to_ustring const* converter = nullptr;
    // Never freed: a zone may be named from a destructor that runs at exit.
    fl::detail::visible_call_once(once, [] { converter = new codecvt_ascii_to_ustring(false); });
    return *converter;
}

ptime const& epoch() {
    static boost::once_flag once = BOOST_ONCE_INIT;
    static ptime const* value = nullptr;
    fl::detail::visible_call_once(once,
                                  [] { value = new ptime(boost::gregorian::date(1970, 1, 1)); });
    return *value;
}

ptime convert(ptime const& t, boost::any const& zone, bool ignore_dst, bool local) {
    icu_zone_ptr const& icu = icu_zone(zone);
    // A special value's duration is its raw tick count, so not-a-date-time and the infinities
    // come out as ordinary (if odd) times below rather than as errors.
    std::int64_t const d = (t - epoch()).total_microseconds();
    // Seconds are held in 32 bits on purpose; the conversion to the signed type is modular.
    auto const s = static_cast<std::int32_t>(
        static_cast<std::uint32_t>(static_cast<std::uint64_t>(d / microseconds_per_second)));
    // Only the sign is checked: a time so late that the cut is positive again passes.
    if (d >= 0 && s < 0) {
        fl::detail::throw_exception(invalid_time_data());
    }
    double const milliseconds = static_cast<double>(s) * 1000.0;
    std::int32_t raw_offset = 0;
    std::int32_t dst_offset = 0;
    UErrorCode status = U_ZERO_ERROR;
    icu->getOffset(milliseconds, local, raw_offset, dst_offset, status);
    if (U_FAILURE(status)) {
        fl::detail::throw_exception(invalid_time_data());
    }
    double const offset = static_cast<double>(raw_offset) + (ignore_dst ? 0 : dst_offset);
    double const shifted = local ? milliseconds - offset : milliseconds + offset;
    std::int64_t const micro =
        static_cast<std::int64_t>(shifted) * 1000 + d % microseconds_per_second;
    return epoch() + boost::posix_time::microseconds(micro);
}

}  // namespace

timezone::timezone(ustring const& id) : ignore_dst_(false) {
    if (id.empty()) {
        create_default();
        return;
    }
    create(id);
}

timezone::timezone(std::string const& id) : ignore_dst_(false) {
    if (id.empty()) {
        create_default();
        return;
    }
    ustring wide;
    try {
        wide = ascii_converter().do_convert(id.data(), id.size());
        zone_ = icu_zone_ptr(icu::TimeZone::createTimeZone(to_icu(wide)));
    } catch (...) {
        fl::detail::throw_exception(invalid_timezone_id());
    }
    validate(zone_);
}

timezone::timezone(timezone const& other)
    : zone_(icu_zone_ptr(icu::TimeZone::createTimeZone(to_icu(other.get_id())))),
      id_(other.id_),
      ignore_dst_(other.ignore_dst_) {}

timezone& timezone::operator=(timezone const& other) {
    if (this != &other) {
        zone_ = icu_zone_ptr(icu::TimeZone::createTimeZone(to_icu(other.get_id())));
        id_ = other.id_;
        ignore_dst_ = other.ignore_dst_;
    }
    return *this;
}

timezone::~timezone() = default;

void timezone::create(ustring const& id) {
    zone_ = icu_zone_ptr(icu::TimeZone::createTimeZone(to_icu(id)));
    validate(zone_);
}

void timezone::create_default() {
    zone_ = icu_zone_ptr(icu::TimeZone::createDefault());
    id_.clear();
    ignore_dst_ = false;
    validate(zone_);
    // A system zone that ICU doesn't know isn't its unknown zone: ICU quietly makes a fixed zone
    // under the system's name. Such a zone couldn't be found again by that name (a copy would be
    // the unknown zone), so it is refused here as well.
    validate(icu_zone_ptr(icu::TimeZone::createTimeZone(to_icu(get_id()))));
}

ustring timezone::get_id() const {
    if (!id_.empty()) {
        return id_;
    }
    icu::UnicodeString id;
    icu_zone(zone_)->getID(id);
    return from_icu(id);
}

bool timezone::operator==(timezone const& other) const {
    return *icu_zone(zone_) == *icu_zone(other.zone_) && get_id() == other.get_id() &&
           ignore_dst_ == other.ignore_dst_;
}

ptime to_utc(ptime const& t, timezone const& zone) {
    return convert(t, zone.zone_, zone.ignore_dst_, true);
}

ptime from_utc(ptime const& t, timezone const& zone) {
    return convert(t, zone.zone_, zone.ignore_dst_, false);
}

}  // namespace time_zone
}  // namespace i18n
}  // namespace fl
