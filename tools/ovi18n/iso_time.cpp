#include "iso_time.hpp"

#include <boost/date_time/posix_time/posix_time.hpp>

#include <cstdio>
#include <regex>

namespace ovi18n_tool {

boost::posix_time::ptime parse_iso_time(std::string const& text) {
    static std::regex const pattern(
        R"((\d{4})-(\d{2})-(\d{2})(?:[T ](\d{2}):(\d{2})(?::(\d{2})(?:[.,](\d{1,6}))?)?)?Z?)");
    std::smatch m;
    if (!std::regex_match(text, m, pattern)) {
        return boost::posix_time::ptime();
    }
    auto number = [&m](int i) { return m[i].matched ? std::stoi(m[i].str()) : 0; };
    std::string fraction = m[7].str();
    fraction.resize(6, '0');
    int const hours = number(4);
    int const minutes = number(5);
    int const seconds = number(6);
    if (hours > 23 || minutes > 59 || seconds > 59) {
        return boost::posix_time::ptime();
    }
    try {
        boost::gregorian::date const day(number(1), number(2), number(3));
        return boost::posix_time::ptime(day,
                                        boost::posix_time::time_duration(hours, minutes, seconds) +
                                            boost::posix_time::microseconds(std::stol(fraction)));
    } catch (std::out_of_range const&) {
        // Boost's calendar refuses a day that doesn't exist, such as February 30.
        return boost::posix_time::ptime();
    }
}

std::string format_iso_time(boost::posix_time::ptime const& t) {
    // Boost writes the fraction after a comma; a point is what most readers of ISO 8601 expect.
    std::string text = boost::posix_time::to_iso_extended_string(t);
    std::string::size_type const comma = text.find(',');
    if (comma != std::string::npos) {
        text[comma] = '.';
    }
    return text;
}

}  // namespace ovi18n_tool
