#include "i18n/lcmgmt/locale_env_apply.hpp"
#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {

void switch_to_english_messages(manager_context& context) {
    std::string const messages = context.user_locale->getLocaleName(OvLocale::messages);
    if (messages == "en_US" || messages == "en_US_POSIX") {
        return;
    }
    auto english = std::make_unique<OvLocaleImpl>(&context.database(), *context.user_locale);
    english->set_category("en_US", "", OvLocale::messages);
    // The old English locale may still be read by another thread through global_locale; the
    // switch happens once per process, so the first one is kept alive rather than deleted.
    context.english_messages_locale.release();
    context.english_messages_locale = std::move(english);
    context.global_locale.store(context.english_messages_locale.get());
    context.setting.l10n_control = l10n_off;
    switch_lc_messages(context.setting);
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
