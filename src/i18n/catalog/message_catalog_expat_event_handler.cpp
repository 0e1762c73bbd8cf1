#include "i18n/catalog/message_catalog_expat_event_handler.hpp"

#include "i18n/catalog/catalog_text_trim.hpp"

#include <cstring>

namespace fl {
namespace i18n {
namespace {

bool is(char const* name, char const* expected) {
    return std::strcmp(name, expected) == 0;
}

// The walk steps over a known attribute's value but only one place past an unknown name, so an
// unknown attribute's value is then read as a name. Existing catalogs rely on what this accepts.
bool catalog_attributes_ok(char const** attributes) {
    for (std::size_t i = 0; attributes[i] != nullptr;) {
        if (is(attributes[i], "version") || is(attributes[i], "locale")) {
            if (attributes[i + 1] == nullptr) {
                return false;
            }
            i += 2;
        } else {
            ++i;
        }
    }
    return true;
}

}  // namespace

MessageCatalogExpatEventHandler::MessageCatalogExpatEventHandler(MessageCatalogDataStore* store)
    : ExpatEventHandler("UTF-8"), store_(store), state_(parse_state::before_root) {}

bool MessageCatalogExpatEventHandler::start_element(char const* name, char const** attributes) {
    if (is(name, "rsccat")) {
        bool const first = state_ == parse_state::before_root;
        state_ = parse_state::in_catalog;
        return first && catalog_attributes_ok(attributes);
    }
    if (is(name, "message")) {
        if (state_ != parse_state::in_catalog) {
            return false;
        }
        state_ = parse_state::in_message;
        return true;
    }
    if (is(name, "entry")) {
        bool const placed = state_ == parse_state::in_message || state_ == parse_state::in_entry;
        state_ = parse_state::in_entry;
        for (std::size_t i = 0; attributes[i] != nullptr; i += 2) {
            if (is(attributes[i], "key")) {
                current_key_ = attributes[i + 1];
            }
        }
        return placed;
    }
    return false;
}

bool MessageCatalogExpatEventHandler::character_data(char const* text, int length,
                                                     bool at_line_start) {
    if (state_ != parse_state::in_entry || current_key_.empty()) {
        return true;
    }
    if (at_line_start) {
        catalog::trim_catalog_text(current_line_);
        current_text_ += ' ';
        current_text_ += current_line_;
        current_line_.assign(text, static_cast<std::size_t>(length));
    } else {
        current_line_.append(text, static_cast<std::size_t>(length));
    }
    return true;
}

bool MessageCatalogExpatEventHandler::end_element(char const* name) {
    if (!is(name, "entry")) {
        return true;
    }
    if (state_ != parse_state::in_entry || current_key_.empty()) {
        return false;
    }
    catalog::trim_catalog_text(current_line_);
    current_text_ += ' ';
    current_text_ += current_line_;
    catalog::trim_catalog_text(current_text_);
    store_->add_entry(current_key_, current_text_);
    current_key_.clear();
    current_line_.clear();
    current_text_.clear();
    return true;
}

}  // namespace i18n
}  // namespace fl
