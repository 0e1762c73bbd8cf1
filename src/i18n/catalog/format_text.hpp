#ifndef FL_I18N_CATALOG_FORMAT_TEXT_HPP
#define FL_I18N_CATALOG_FORMAT_TEXT_HPP

#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl {
namespace i18n {
namespace catalog {

// Fills the holes of text from arguments, as MessageCatalog::GetFormattedMessage describes.
// Without check_count a mismatch of holes and arguments is left to the formatter, which keeps
// unresolved holes as they are.
ustring format_text(ustring const& text, MessageCatalog::ArgList const& arguments,
                    bool check_count);

}  // namespace catalog
}  // namespace i18n
}  // namespace fl

#endif
