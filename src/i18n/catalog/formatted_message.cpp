#include <fl/i18n/catalog/message_catalog.hpp>

#include "i18n/catalog/format_text.hpp"

namespace fl {
namespace i18n {

ustring MessageCatalog::GetFormattedMessage(ustring const& text, ArgList const& arguments) {
    return catalog::format_text(text, arguments, true);
}

}  // namespace i18n
}  // namespace fl
