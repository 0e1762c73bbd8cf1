#include <fl/i18n/catalog/catalog_id.hpp>

#include "common/throw_exception.hpp"
#include "i18n/catalog/id_syntax.hpp"

namespace fl {
namespace i18n {

char const* const CatalogID::badCatException_ = "Bad Catalog ID";

char const* CatalogID::badCatalogIDException::what() const noexcept {
    return badCatException_;
}

CatalogID::CatalogID(std::string const& id) : catalog_id(id) {
    if (!catalog::has_token_syntax(id) || !extractIDComponents(id, component, subcomponent_names)) {
        fl::detail::throw_exception(badCatalogIDException());
    }
}

void CatalogID::setCatalogID(std::string const& id) {
    if (id.empty()) {
        fl::detail::throw_exception(badCatalogIDException());
    }
    if (id == catalog_id) {
        return;
    }
    std::string new_component;
    std::string new_subcomponents;
    if (!catalog::has_token_syntax(id) ||
        !extractIDComponents(id, new_component, new_subcomponents)) {
        fl::detail::throw_exception(badCatalogIDException());
    }
    component.swap(new_component);
    subcomponent_names.swap(new_subcomponents);
    catalog_id = id;
}

bool CatalogID::extractIDComponents(std::string const& id, std::string& component,
                                    std::string& subcomponent_names) {
    std::size_t const colon = id.find(':');
    if (colon == std::string::npos) {
        return false;
    }
    component = id.substr(0, colon);
    subcomponent_names = id.substr(colon + 1);
    return !component.empty() && !subcomponent_names.empty();
}

}  // namespace i18n
}  // namespace fl
