#ifndef FL_I18N_CATALOG_CATALOG_TEXT_TRIM_HPP
#define FL_I18N_CATALOG_CATALOG_TEXT_TRIM_HPP

#include <string>

namespace fl {
namespace i18n {
namespace catalog {

// Strips space, tab, vertical tab, line feed and carriage return from both ends. Form feed stays:
// catalogs use it on purpose in text meant for printers.
void trim_catalog_text(std::string& text);

}  // namespace catalog
}  // namespace i18n
}  // namespace fl

#endif
