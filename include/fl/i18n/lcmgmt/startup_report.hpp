#ifndef FL_I18N_LCMGMT_STARTUP_REPORT_HPP
#define FL_I18N_LCMGMT_STARTUP_REPORT_HPP

#include <fl/i18n/export.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

// For diagnostics: what start-up did with the locale database file. Both are empty before
// start-up, and the file name stays empty when no directory for it could be found.
FL_I18N_API std::string get_locale_database_file();
// Every warning start-up and the database file gave, in the order they came.
FL_I18N_API std::vector<std::string> get_startup_warnings();

}  // namespace i18n
}  // namespace fl

#endif
