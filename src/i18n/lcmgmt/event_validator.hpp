#ifndef FL_I18N_LCMGMT_EVENT_VALIDATOR_HPP
#define FL_I18N_LCMGMT_EVENT_VALIDATOR_HPP

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

struct EventDesc {
    std::int32_t id;
    std::string parent;
};

// The nesting rules of an XML document: which element may stand inside which. It checks names
// only; attributes are the handler's business.
class EventValidator {
public:
    static constexpr std::int32_t refused = -2;

    void add(std::string const& name, std::int32_t id, std::string const& parent);
    // The element's id, or refused. Any known element may be the outermost one. An element
    // directly inside one of the same name is let through without being pushed, so its end tag
    // closes the outer one and the outer end tag is then refused; existing files depend on
    // nothing stricter.
    std::int32_t start(std::string const& name);
    // 0, or refused when the name doesn't close the innermost open element.
    std::int32_t end(std::string const& name);

private:
    std::map<std::string, std::shared_ptr<EventDesc>> events_;
    std::vector<std::string> open_;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
