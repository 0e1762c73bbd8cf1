#include "i18n/lcmgmt/manager_context.hpp"

#include "common/visible_call_once.hpp"

#include <unicode/locid.h>
#include <unicode/ucnv.h>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

manager_context* the_manager = nullptr;
boost::once_flag manager_once = BOOST_ONCE_INIT;

std::unique_ptr<OvLocaleImpl> make_posix_locale(Lcdb const* database) {
    auto locale = std::make_unique<OvLocaleImpl>(database);
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        locale->set_category("en_US_POSIX", "", static_cast<OvLocale::LcCategory>(c));
    }
    locale->set_encoding("US-ASCII");
    return locale;
}

std::unique_ptr<OvLocaleImpl> make_default_user_locale(Lcdb const* database) {
    auto locale = make_posix_locale(database);
    locale->set_category("en_US", "", OvLocale::messages);
    locale->set_terminal_encoding("US-ASCII");
    return locale;
}

// Lets the default setting reach the manager while its own once region still runs; every other
// thread waits at the once flag until the setting is complete.
thread_local bool creating_manager = false;

}  // namespace

// The built-in tables answer until start-up publishes the ones extended by the database file.
manager_context::manager_context() : lookup_(new lookup_data), outcome_(new startup_outcome) {
    static char const* const category_names[] = {"ctype",   "collate",  "time",
                                                 "numeric", "monetary", "messages"};
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        category_by_name[category_names[c]] = category;
        name_by_category[category] = category_names[c];
    }
    static char const* const opt_data_names[] = {"jvmencoding",       "termencoding",
                                                 "terminputencoding", "termoutputencoding",
                                                 "papersize",         "unittype"};
    for (int t = 0; t < 6; ++t) {
        opt_data_type_by_name[opt_data_names[t]] = static_cast<OvLcOptDataCtx::LcOptDataType>(t);
    }
}

void manager_context::create() {
    // Cleared on every path: a failed default setting must not leave this thread bypassing the
    // once flag with a half-made manager.
    struct creating_scope {
        creating_scope() { creating_manager = true; }
        ~creating_scope() { creating_manager = false; }
        creating_scope(creating_scope const&) = delete;
        creating_scope& operator=(creating_scope const&) = delete;
    } const scope;
    the_manager = new manager_context();
    the_manager->apply_default_setting();
}

void manager_context::apply_default_setting() {
    classic_locale = make_posix_locale(&database());
    system_locale = make_default_user_locale(&database());
    user_locale = make_default_user_locale(&database());
    global_locale = classic_locale.get();

    ucnv_setDefaultName("US-ASCII");
    UErrorCode ignored = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("en_US_POSIX"), ignored);
}

void manager_context::publish_outcome() {
    auto* fresh = new startup_outcome{status,   status_message,
                                      warnings, database_file,
                                      setting,  outcome_.load(std::memory_order_relaxed)};
    outcome_.store(fresh, std::memory_order_release);
}

manager_context& manager_context::instance() {
    if (!creating_manager) {
        fl::detail::visible_call_once(manager_once, &manager_context::create);
    }
    return *the_manager;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
