#include "commands.hpp"
#include "report.hpp"

#include <fl/i18n.hpp>

#include <string>
#include <vector>

namespace ovi18n_tool {
namespace {

using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;

report::entry describe(std::string const& title, OvLocale const& locale) {
    std::vector<report::entry> categories;
    for (int c = OvLocale::ctype; c <= OvLocale::messages; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        categories.push_back(
            report::section(OvLocale::getLcCategoryName(category),
                            {report::text("name", locale.getLocaleName(category)),
                             report::text("modifier", locale.getModifier(category)),
                             report::text("language", locale.getLanguage(category)),
                             report::text("region", locale.getRegion(category))}));
    }
    std::string const terminal =
        boost::get<std::string>(locale.getOptData(OvLcOptDataCtx::termencoding));
    return report::section(title, {report::section("categories", categories),
                                   report::text("encoding", locale.getEncoding()),
                                   report::text("terminal_encoding", terminal)});
}

}  // namespace

int run_locale(std::ostream& out, bool json) {
    fl::i18n::initialize();

    report r;
    r.entries.push_back(
        report::literal("status", std::to_string(fl::i18n::OvLcUtil::getLcStatus())));
    r.entries.push_back(report::text("status_message", fl::i18n::OvLcUtil::getInitStatusMsg()));
    r.entries.push_back(report::text("warning_message", fl::i18n::OvLcUtil::getInitWarningMsg()));
    r.entries.push_back(report::literal("l10n_resource_enabled",
                                        fl::i18n::get_l10n_resource_status() ? "true" : "false"));
    r.entries.push_back(describe("classic", OvLocale::classic()));
    r.entries.push_back(describe("system", OvLocale::system()));
    r.entries.push_back(describe("global", OvLocale::global()));

    if (json) {
        r.print_json(out);
    } else {
        r.print_text(out);
    }
    return 0;
}

}  // namespace ovi18n_tool
