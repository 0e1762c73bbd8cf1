#include <fl/i18n/catalog/message_id.hpp>

#include "common/throw_exception.hpp"
#include "i18n/catalog/id_syntax.hpp"

namespace fl {
namespace i18n {

char const* const MessageID::badMsgException_ = "Bad Message ID";

char const* MessageID::badMessageIDException::what() const noexcept {
    return badMsgException_;
}

MessageID::MessageID(CatalogID const& catalog, std::string const& key)
    : catalog(catalog), msg_key(key) {
    if (key.empty()) {
        fl::detail::throw_exception(badMessageIDException());
    }
    composite_id = catalog.getComponentName() + ":" + catalog.getSubComponentsNames() + ":" + key;
}

MessageID::MessageID(std::string const& id) : composite_id(id) {
    if (!catalog::has_token_syntax(id) || !extractIDComponents(id)) {
        fl::detail::throw_exception(badMessageIDException());
    }
}

void MessageID::setCompositeMsgID(std::string const& id) {
    if (id.empty()) {
        fl::detail::throw_exception(badMessageIDException());
    }
    if (id == composite_id) {
        return;
    }
    if (!catalog::has_token_syntax(id) || !extractIDComponents(id)) {
        fl::detail::throw_exception(badMessageIDException());
    }
    composite_id = id;
}

bool MessageID::extractIDComponents(std::string const& id) {
    std::size_t const colon = id.rfind(':');
    if (colon == std::string::npos) {
        return false;
    }
    try {
        catalog.setCatalogID(id.substr(0, colon));
    } catch (CatalogID::badCatalogIDException const&) {
        return false;
    }
    msg_key = id.substr(colon + 1);
    return !msg_key.empty();
}

}  // namespace i18n
}  // namespace fl
