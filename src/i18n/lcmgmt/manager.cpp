#include <fl/i18n/lcmgmt/manager.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <boost/thread/locks.hpp>

namespace fl {
namespace i18n {
namespace {

using lcmgmt::manager_context;
using lock = boost::unique_lock<boost::mutex>;

}  // namespace

void lock_global_locale_setting() {
    manager_context& context = manager_context::instance();
    lock guard(context.mutex);
    context.global_locale_locked = true;
}

void change_global_locale(OvLocale const& locale) {
    manager_context& context = manager_context::instance();
    lock guard(context.mutex);
    if (context.global_locale_locked || !context.l10n_resource_enabled) {
        return;
    }
    if (locale.getLocaleName(OvLocale::messages) == "en_US" &&
        context.user_locale->getLocaleName(OvLocale::messages) != "en_US") {
        lcmgmt::switch_to_english_messages(context);
        context.l10n_resource_enabled = false;
    }
    context.global_locale_locked = true;
}

void disable_l10n_resource() {
    manager_context& context = manager_context::instance();
    lock guard(context.mutex);
    if (context.l10n_resource_enabled) {
        lcmgmt::switch_to_english_messages(context);
        context.l10n_resource_enabled = false;
    }
}

bool get_l10n_resource_status() {
    manager_context& context = manager_context::instance();
    lock guard(context.mutex);
    return context.l10n_resource_enabled;
}

}  // namespace i18n
}  // namespace fl
