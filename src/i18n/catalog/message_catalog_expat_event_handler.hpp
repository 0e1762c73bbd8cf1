#ifndef FL_I18N_CATALOG_MESSAGE_CATALOG_EXPAT_EVENT_HANDLER_HPP
#define FL_I18N_CATALOG_MESSAGE_CATALOG_EXPAT_EVENT_HANDLER_HPP

#include "i18n/catalog/expat_event_handler.hpp"
#include "i18n/catalog/message_catalog_data_store.hpp"

#include <string>

namespace fl {
namespace i18n {

// Reads a catalog document, rsccat > message > entry*, into a store. Each physical line of a
// message is trimmed and the lines are joined with one space.
class MessageCatalogExpatEventHandler : public ExpatEventHandler {
public:
    enum class parse_state { before_root, in_catalog, in_message, in_entry };

    // store is not owned and must outlive the parse.
    explicit MessageCatalogExpatEventHandler(MessageCatalogDataStore* store);

    bool start_element(char const* name, char const** attributes) override;
    bool character_data(char const* text, int length, bool at_line_start) override;
    bool end_element(char const* name) override;

private:
    MessageCatalogDataStore* store_;
    std::string current_key_;
    std::string current_line_;
    std::string current_text_;
    // Stays in_entry after an entry ends: that is what lets the next entry follow.
    parse_state state_;
};

}  // namespace i18n
}  // namespace fl

#endif
