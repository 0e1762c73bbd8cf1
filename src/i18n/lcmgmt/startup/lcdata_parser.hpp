#ifndef FL_I18N_LCMGMT_LCDATA_PARSER_HPP
#define FL_I18N_LCMGMT_LCDATA_PARSER_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>

#include <istream>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

// Applies a locale database file to the database, element by element; changes the database
// refuses are appended to warnings. Throws the LcRscExceptionBase family; whatever the document
// did before a failure stays applied. The path is in access form (bytes as the system takes them).
void parseLcData(Lcdb& database, std::string const& path, std::vector<std::string>& warnings);

class EventHandler;

// Feeds the document on input to handler. An exception from the handler stops the parse and
// leaves this function as it was thrown, without passing through the XML parser.
void parseXml(EventHandler& handler, std::istream& input, std::string const& path);

// The same over an open stream; path only names it in messages.
void parseLcData(Lcdb& database, std::istream& input, std::string const& path,
                 std::vector<std::string>& warnings);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
