#include <fl/i18n/lcmgmt/ov_lc_util.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {
namespace {

using lcmgmt::manager_context;

char const* const event_words[lcmgmt::posix_category_count] = {
    "Ctype", "Collate", "Time",    "Numeric",   "Monetary",    "Messages",
    "Paper", "Name",    "Address", "Telephone", "Measurement", "Identification"};

}  // namespace

std::int32_t OvLcUtil::getLcStatus() {
    return manager_context::instance().outcome().status;
}

std::string OvLcUtil::getInitStatusMsg() {
    switch (getLcStatus()) {
        case lcmgmt::status_initialized:
        case lcmgmt::status_invalid_setting:
            return "Orvane locale management system initialized.";
        case lcmgmt::status_database_failed:
            return "Failed to load Orvane locale database. Using Orvane default locale setting "
                   "instead.";
        case lcmgmt::status_not_initialized:
            return "Orvane locale management system not initialized.";
        default:
            return std::string();
    }
}

std::string OvLcUtil::getInitWarningMsg() {
    return manager_context::instance().outcome().status_message;
}

std::map<std::string, std::string> OvLcUtil::getLocaleInformation() {
    lcmgmt::locale_env_snapshot const& s = manager_context::instance().outcome().setting;
    std::map<std::string, std::string> info;
    for (int i = 0; i < lcmgmt::posix_category_count; ++i) {
        std::string const word = event_words[i];
        info["InitialXpgLc" + word] = s.initial_xpg[i];
        info["XpgLc" + word] = s.xpg[i];
        info["XpgEnvLc" + word] = s.env[i];
    }
    info["XpgEnvLcAll"] = s.env[12];
    info["XpgEnvLang"] = s.env[13];
    info["XpgEncoding"] = s.xpg_encoding;
    for (std::size_t i = 0; i < s.error_events.size(); ++i) {
        info["ErrorEvent" + std::to_string(i + 1)] = s.error_events[i];
    }
    return info;
}

}  // namespace i18n
}  // namespace fl
