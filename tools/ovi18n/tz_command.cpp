#include "commands.hpp"
#include "iso_time.hpp"
#include "report.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <boost/date_time/posix_time/posix_time.hpp>

#include <cstdlib>
#include <string>

namespace ovi18n_tool {
namespace {

std::string utf8(fl::i18n::ustring const& text) {
    // Zone identifiers are ASCII; anything else would be shown as '?'.
    std::string out;
    for (char16_t unit : text) {
        out += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return out;
}

// "+HH:MM" or "-HH:MM".
std::string offset_text(long seconds) {
    long const minutes = std::labs(seconds) / 60;
    char text[16];
    std::snprintf(text, sizeof text, "%c%02ld:%02ld", seconds < 0 ? '-' : '+', minutes / 60,
                  minutes % 60);
    return text;
}

}  // namespace

int run_tz(std::vector<std::string> const& args, std::ostream& out) {
    std::string zone_name;
    bool zone_given = false;
    bool json = false;
    boost::posix_time::ptime at = boost::posix_time::microsec_clock::universal_time();
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--json") {
            json = true;
        } else if (args[i] == "--at") {
            if (i + 1 == args.size()) {
                return usage_error("--at needs a time");
            }
            at = parse_iso_time(args[++i]);
            if (at.is_special()) {
                return usage_error("invalid time '" + args[i] + "', expected YYYY-MM-DDTHH:MM:SS");
            }
        } else if (args[i].rfind("--", 0) == 0 || zone_given) {
            return usage_error("unknown argument '" + args[i] + "'");
        } else {
            zone_name = args[i];
            zone_given = true;
        }
    }
    // An empty name means the system's default zone; an unknown one throws the library's error.
    fl::i18n::time_zone::timezone const zone(zone_name);
    boost::posix_time::ptime const local = fl::i18n::time_zone::from_utc(at, zone);
    boost::posix_time::ptime const utc = fl::i18n::time_zone::to_utc(at, zone);
    long const offset = (local - at).total_seconds();
    report r;
    r.entries = {
        report::text("zone", utf8(zone.get_id())),
        report::text("time", format_iso_time(at)),
        report::text("from_utc", format_iso_time(local)),
        report::text("to_utc", format_iso_time(utc)),
        report::text("utc_offset", offset_text(offset)),
        report::literal("utc_offset_seconds", std::to_string(offset)),
    };
    r.print(out, json);
    return 0;
}

}  // namespace ovi18n_tool
