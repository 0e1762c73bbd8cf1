#include "commands.hpp"
#include "environment_snapshot.hpp"
#include "locale_sections.hpp"
#include "report.hpp"

#include <fl/i18n.hpp>

#include <string>

namespace ovi18n_tool {

int run_locale(std::ostream& out, bool json) {
    // Start-up rewrites the locale variables, so what it was given must be read before it runs.
    report::entry environment_before = snapshot_locale_environment("before");
    fl::i18n::initialize();

    using fl::i18n::OvLcUtil;
    using fl::i18n::OvLocale;
    report r;
    r.entries = {
        report::literal("status", std::to_string(OvLcUtil::getLcStatus())),
        report::text("status_message", OvLcUtil::getInitStatusMsg()),
        report::text("warning_message", OvLcUtil::getInitWarningMsg()),
        report::literal("l10n_resource_enabled",
                        fl::i18n::get_l10n_resource_status() ? "true" : "false"),
        report::section("environment",
                        {std::move(environment_before), snapshot_locale_environment("after")}),
        describe_locale_information("found"),
        describe_database("database"),
        describe_c_library("c_library"),
        describe_locale("classic", OvLocale::classic()),
        describe_locale("system", OvLocale::system()),
        describe_locale("global", OvLocale::global()),
        describe_messages_fallback("messages_fallback"),
        describe_icu_defaults("icu"),
        describe_javavm_context("javavm"),
    };
    r.print(out, json);
    return 0;
}

}  // namespace ovi18n_tool
