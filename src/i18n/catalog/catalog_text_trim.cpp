#include "i18n/catalog/catalog_text_trim.hpp"

namespace fl {
namespace i18n {
namespace catalog {

void trim_catalog_text(std::string& text) {
    static char const blanks[] = " \t\v\n\r";
    std::size_t const last = text.find_last_not_of(blanks);
    if (last == std::string::npos) {
        text.clear();
        return;
    }
    text.erase(last + 1);
    text.erase(0, text.find_first_not_of(blanks));
}

}  // namespace catalog
}  // namespace i18n
}  // namespace fl
