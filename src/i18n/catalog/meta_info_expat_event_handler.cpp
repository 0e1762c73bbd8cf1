#include "i18n/catalog/meta_info_expat_event_handler.hpp"

#include <cstring>
#include <utility>

namespace fl {
namespace i18n {

MetaInfoExpatEventHandler::MetaInfoExpatEventHandler(
    ustring const& prefix, boost::shared_ptr<boost::unordered_set<ustring>> names)
    : ExpatEventHandler("UTF-8"),
      prefix_(prefix),
      names_(std::move(names)),
      tag_stack_{at_document},
      ascii_(false) {}

bool MetaInfoExpatEventHandler::start_element(char const* name, char const** attributes) {
    if (std::strcmp(name, "MessageCatalogMap") == 0) {
        if (tag_stack_.empty() || tag_stack_.back() != at_document) {
            return false;
        }
        tag_stack_.push_back(in_catalog_map);
        return true;
    }
    if (std::strcmp(name, "entry") == 0) {
        if (tag_stack_.empty() || tag_stack_.back() != in_catalog_map) {
            return false;
        }
        tag_stack_.push_back(in_entry);
        read_entry(attributes);
        return true;
    }
    return false;
}

bool MetaInfoExpatEventHandler::character_data(char const*, int, bool) {
    return true;
}

bool MetaInfoExpatEventHandler::end_element(char const*) {
    // Every end matches a start that was accepted, since a refused start stops the parse.
    if (!tag_stack_.empty()) {
        tag_stack_.pop_back();
    }
    return true;
}

void MetaInfoExpatEventHandler::read_entry(char const** attributes) {
    for (; attributes[0] != nullptr; attributes += 2) {
        if (std::strcmp(attributes[0], "key") != 0) {
            continue;
        }
        ustring const key = ascii_.do_convert(attributes[1], std::strlen(attributes[1]));
        // Keys outside the prefix are passed over, and so is the prefix itself.
        if (key.size() <= prefix_.size() || key.compare(0, prefix_.size(), prefix_) != 0 ||
            key[prefix_.size()] != u':') {
            continue;
        }
        std::size_t const begin = prefix_.size() + 1;
        std::size_t const end = key.find(u':', begin);
        names_->insert(key.substr(begin, end == ustring::npos ? ustring::npos : end - begin));
    }
}

}  // namespace i18n
}  // namespace fl
