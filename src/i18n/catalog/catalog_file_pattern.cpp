#include <fl/i18n/codecvt/codecvt_ascii.hpp>

#include "i18n/catalog/catalog_map.hpp"

namespace fl {
namespace i18n {

ustring catalog_file_pattern(std::string const& catalog_id) {
    std::size_t const colon = catalog_id.find(':');
    if (colon == std::string::npos || catalog_id.back() == ':') {
        return ustring();
    }
    // The component, then the locale's place, then the sub-components as directories; the
    // separator is "/" whatever the platform.
    std::string text = catalog_id.substr(0, colon) + "/%S";
    std::string rest = catalog_id.substr(colon + 1);
    for (std::size_t next = rest.find(':'); next != std::string::npos; next = rest.find(':')) {
        text += "/" + rest.substr(0, next);
        rest.erase(0, next + 1);
    }
    text += "/" + rest + ".xml";
    return codecvt_ascii_to_ustring().do_convert(text.data(), text.size());
}

}  // namespace i18n
}  // namespace fl
