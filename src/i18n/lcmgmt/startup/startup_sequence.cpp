#include <fl/filesystem/path_algebra.hpp>
#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include "common/ascii.hpp"
#include "filesystem/install_root.hpp"
#include "i18n/lcmgmt/locale_env_apply.hpp"
#include "i18n/lcmgmt/manager_context.hpp"
#include "i18n/lcmgmt/startup/lcdata_parser.hpp"
#include "i18n/lcmgmt/startup/startup_sequence.hpp"
#include "i18n/lcmgmt/system_setting_reader.hpp"
#include "platform/process_environment.hpp"

#include <unicode/locid.h>
#include <unicode/ucnv.h>

#include <memory>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

char const* const override_variables[] = {"OVLOCALE_LCDATA_PATH", "OVLOCALE_LCDATA_FILENAME",
                                          "OVLOCALE_L10N_CONTROL", "OVLOCALE_TERMINAL_ENCODING",
                                          "OVLOCALE_USE_UTF8_AS_DEFAULT"};

std::string override_value(locale_env_snapshot const& setting, char const* name) {
    auto const found = setting.override_values.find(name);
    return found == setting.override_values.end() ? std::string() : found->second;
}

// The library's own variables; OVLOCALE_TERMINAL_ENCODING is kept with the others but nothing
// consults it.
void read_override_variables(locale_env_snapshot& setting) {
    for (char const* name : override_variables) {
        char const* value = i18n::detail::platform::environment_value(name);
        if (value != nullptr && *value != '\0') {
            setting.override_values[name] = value;
        }
    }
    setting.use_utf8_as_default = fl::detail::to_ascii_lower(override_value(
                                      setting, "OVLOCALE_USE_UTF8_AS_DEFAULT")) == "true";
    std::string const control =
        fl::detail::to_ascii_lower(override_value(setting, "OVLOCALE_L10N_CONTROL"));
    setting.l10n_control = control == "on"    ? l10n_on
                           : control == "off" ? l10n_off
                                              : l10n_unspecified;
}

// Bytes throughout: nothing may be decoded before the process encoding is decided.
std::string locate_database_file(manager_context& context) {
    std::string directory = override_value(context.setting, "OVLOCALE_LCDATA_PATH");
    if (directory.empty()) {
        directory = fl::filesystem::detail::find_install_root();
        if (!directory.empty()) {
            fl::filesystem::detail::concatenate_pathname(directory, "bin", false);
        }
    }
    if (directory.empty()) {
        context.warnings.push_back(
            "initLocaleMgmt:getLcDataPath - Failed to get the install path.");
        return std::string();
    }
    std::string file_name = override_value(context.setting, "OVLOCALE_LCDATA_FILENAME");
    if (file_name.empty()) {
        file_name = "lcdata.xml";
    }
    return fl::filesystem::detail::concatenate_pathname(directory, file_name, false);
}

char const* database_failure_warning(std::int32_t code) {
    switch (code) {
        case 2:
            return "initLocaleMgmt:parseLcData - Failed to open the locale database.";
        case 3:
            return "initLocaleMgmt:parseLcData - Failed to read the locale database.";
        case 4:
            return "initLocaleMgmt:parseLcData - Failed to create the parser.";
        case 5:
            return "initLocaleMgmt:parseLcData - invalid locale database.";
        default:
            return nullptr;
    }
}

// No database file is a working state: the built-in tables answer, and the failure is only
// reported.
void load_locale_database(manager_context& context, Lcdb& database) {
    context.database_file = locate_database_file(context);
    if (context.database_file.empty()) {
        return;
    }
    try {
        parseLcData(database, context.database_file, context.warnings);
    } catch (LcRscExceptionBase const& failure) {
        if (char const* warning = database_failure_warning(failure.getCode())) {
            context.warnings.push_back(warning);
            context.status = status_database_failed;
            context.status_message = failure.getMessage();
        }
    }
}

// The reader fills a locale nobody else sees yet; it and the reader stay for the life of the
// process, like everything the manager makes.
OvLocaleImpl const& read_system_setting(manager_context& context, Lcdb const& database) {
    auto* system = new OvLocaleImpl(&database);
    context.setting_reader = new system_setting_reader(database, *system, context.status,
                                                       context.status_message, context.setting);
    context.setting_reader->read();
    return *system;
}

// Readers hold the manager's locales without a lock, so they switch to the new setting in place
// rather than being replaced. The user locale is the system one, except that the library's own
// numbers never depend on it.
void make_user_locale_global(manager_context& context, OvLocaleImpl const& system) {
    if (context.setting.l10n_control == l10n_on) {
        context.global_locale_locked = true;
    }
    OvLocaleImpl user(system.database(), system);
    user.set_category("en_US_POSIX", "", OvLocale::numeric);
    context.system_locale->publish(system);
    context.user_locale->publish(user);
    context.global_locale.store(context.user_locale.get());
    if (context.setting.l10n_control == l10n_off) {
        switch_to_english_messages(context);
        context.l10n_resource_enabled = false;
    }
}

void tell_icu(OvLocale const& global) {
    ucnv_setDefaultName(global.getEncoding().c_str());
    UErrorCode ignored = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(global.getLocaleName(OvLocale::ctype).c_str()), ignored);
}

}  // namespace

void run_startup_sequence(manager_context& context) {
    // Whatever start-up got to is reported, even when it stops half way.
    class outcome_publisher {
    public:
        explicit outcome_publisher(manager_context& context) : context_(context) {}
        ~outcome_publisher() { context_.publish_outcome(); }
        outcome_publisher(outcome_publisher const&) = delete;
        outcome_publisher& operator=(outcome_publisher const&) = delete;

    private:
        manager_context& context_;
    } const publisher(context);
    read_override_variables(context.setting);
    auto lookup = std::make_unique<lookup_data>();
    lookup->use_utf8_as_default = context.setting.use_utf8_as_default;
    load_locale_database(context, lookup->database);
    OvLocaleImpl const& system = read_system_setting(context, lookup->database);
    // Published before the locales that point at it; never freed.
    context.publish(lookup.release());
    make_user_locale_global(context, system);
    apply_locale_setting(context.setting);
    tell_icu(*context.global_locale.load());
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
