#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcmgmt/manager_context.hpp"

#include "common/ascii.hpp"

namespace fl {
namespace i18n {

using lcmgmt::manager_context;

OvLocale::~OvLocale() = default;

OvLocale const& OvLocale::classic() {
    return *manager_context::instance().classic_locale;
}

OvLocale const& OvLocale::system() {
    return *manager_context::instance().system_locale;
}

OvLocale const& OvLocale::global() {
    return *manager_context::instance().global_locale.load();
}

OvLocale::LcCategory OvLocale::getLcCategory(std::string const& name) {
    auto const& table = manager_context::instance().category_by_name;
    auto const found = table.find(detail::to_ascii_lower(name));
    if (found == table.end()) {
        detail::throw_exception(OvLcDataNotFound());
    }
    return found->second;
}

std::string OvLocale::getLcCategoryName(LcCategory category) {
    auto const& table = manager_context::instance().name_by_category;
    auto const found = table.find(category);
    if (found == table.end()) {
        detail::throw_exception(OvLcDataNotFound());
    }
    return found->second;
}

OvLcOptDataCtx::~OvLcOptDataCtx() = default;

OvLcOptDataCtx::LcOptDataType OvLcOptDataCtx::getOptDataType(std::string const& name) {
    auto const& table = manager_context::instance().opt_data_type_by_name;
    auto const found = table.find(detail::to_ascii_lower(name));
    if (found == table.end()) {
        detail::throw_exception(OvLcDataNotFound());
    }
    return found->second;
}

}  // namespace i18n
}  // namespace fl
