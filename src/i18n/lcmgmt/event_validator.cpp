#include "i18n/lcmgmt/event_validator.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

void EventValidator::add(std::string const& name, std::int32_t id, std::string const& parent) {
    events_[name] = std::make_shared<EventDesc>(EventDesc{id, parent});
}

std::int32_t EventValidator::start(std::string const& name) {
    auto const found = events_.find(name);
    if (found == events_.end()) {
        return refused;
    }
    EventDesc const& event = *found->second;
    if (open_.empty()) {
        open_.push_back(name);
        return event.id;
    }
    if (open_.back() == name) {
        return event.id;
    }
    if (open_.back() != event.parent) {
        return refused;
    }
    open_.push_back(name);
    return event.id;
}

std::int32_t EventValidator::end(std::string const& name) {
    if (open_.empty() || open_.back() != name) {
        return refused;
    }
    open_.pop_back();
    return 0;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
