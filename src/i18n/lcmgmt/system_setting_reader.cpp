#include "i18n/lcmgmt/system_setting_reader.hpp"

#include "i18n/lcmgmt/encoding_standard_name.hpp"
#include "i18n/lcmgmt/lc_status.hpp"
#include "platform/c_library_locale.hpp"
#include "platform/process_environment.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

char const* const invalid_locale_message = "Invalid locale name.";
char const* const fallback_encoding = "US-ASCII";

std::string text_or_empty(char const* text) {
    return text != nullptr ? std::string(text) : std::string();
}

// The stored form of a modifier has no leading "@".
std::string without_marker(std::string const& modifier) {
    return (!modifier.empty() && modifier[0] == '@') ? modifier.substr(1) : modifier;
}

}  // namespace

system_setting_reader::system_setting_reader(Lcdb const& database, OvLocaleImpl& system_locale,
                                             std::int32_t& status, std::string& status_message,
                                             locale_env_snapshot& setting)
    : database_(database),
      system_locale_(system_locale),
      status_(status),
      status_message_(status_message),
      setting_(setting) {}

void system_setting_reader::read() {
    status_ = status_initialized;
    read_c_library();
    bool const valid = analyse_locale_setting(database_, setting_);
    resolve_encodings(valid);
    if (setting_.l10n_control == l10n_unspecified) {
        apply_l10n_data();
    }
    fill_system_locale();
}

void system_setting_reader::read_c_library() {
    for (int i = 0; i < posix_category_count; ++i) {
        setting_.initial_xpg[i] = detail::platform::current_c_locale(posix_categories[i]);
    }
    for (int i = 0; i < posix_category_count; ++i) {
        detail::platform::follow_environment_locale(posix_categories[i]);
        setting_.xpg[i] = detail::platform::current_c_locale(posix_categories[i]);
    }
    for (int i = 0; i < locale_env_var_count; ++i) {
        setting_.env[i] =
            text_or_empty(detail::platform::environment_value(locale_env_var_names[i]));
    }
    setting_.xpg_encoding = detail::platform::current_codeset();
}

void system_setting_reader::resolve_encodings(bool valid) {
    if (!valid) {
        status_ = status_invalid_setting;
        status_message_ = invalid_locale_message;
        setting_.encoding = fallback_encoding;
        setting_.terminal_encoding = fallback_encoding;
        return;
    }
    // Terminals are taken to follow the locale, so both start from the C library's codeset.
    for (std::string* target : {&setting_.encoding, &setting_.terminal_encoding}) {
        char const* name =
            database_.standard_encoding_name(encoding_standard_name(setting_.xpg_encoding));
        if (name == nullptr) {
            name = fallback_encoding;
        }
        *target = name;
        if (target->empty()) {
            *target = fallback_encoding;
            status_ = status_invalid_setting;
            status_message_ = invalid_locale_message;
        }
    }
}

// A locale can be marked in lcdata.xml to keep its messages in English.
void system_setting_reader::apply_l10n_data() {
    std::string const& disable =
        database_.optional_data(setting_.category_locale[lc_messages_index].first, "disable_l10n")
            .first;
    if (disable.find('L') != std::string::npos) {
        setting_.l10n_control = l10n_off;
    }
}

void system_setting_reader::fill_system_locale() {
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        auto const& locale = setting_.category_locale[c];
        system_locale_.set_category(locale.first, without_marker(locale.second),
                                    static_cast<OvLocale::LcCategory>(c));
    }
    system_locale_.set_encoding(setting_.encoding);
    system_locale_.set_terminal_encoding(setting_.terminal_encoding);
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
