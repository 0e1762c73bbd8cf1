#ifndef OVI18N_TOOL_ISO_TIME_HPP
#define OVI18N_TOOL_ISO_TIME_HPP

#include <boost/date_time/posix_time/ptime.hpp>

#include <string>

namespace ovi18n_tool {

// "YYYY-MM-DD[THH:MM[:SS[.ffffff]]][Z]", with a space allowed for the T. A time without a zone
// is taken as given, with no zone implied. Not-a-date-time when the text is not such a time.
boost::posix_time::ptime parse_iso_time(std::string const& text);

// "YYYY-MM-DDTHH:MM:SS", with ".ffffff" only when there is a fraction.
std::string format_iso_time(boost::posix_time::ptime const& t);

}  // namespace ovi18n_tool

#endif
