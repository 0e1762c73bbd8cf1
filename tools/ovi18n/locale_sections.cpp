#include "locale_sections.hpp"

#include <fl/i18n.hpp>

#include <unicode/ucnv.h>
#include <unicode/uloc.h>

#include <langinfo.h>

#include <clocale>
#include <map>
#include <vector>

namespace ovi18n_tool {
namespace {

using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;

std::string opt_text(OvLocale const& locale, OvLcOptDataCtx::LcOptDataType type) {
    return boost::get<std::string>(locale.getOptData(type));
}

std::string paper_size_name(OvLocale const& locale) {
    auto const size =
        boost::get<OvLcOptDataCtx::LcPaperSizeType>(locale.getOptData(OvLcOptDataCtx::papersize));
    return size == OvLcOptDataCtx::paper_a4 ? "A4" : "other";
}

std::string unit_system_name(OvLocale const& locale) {
    switch (boost::get<OvLcOptDataCtx::LcUnitType>(locale.getOptData(OvLcOptDataCtx::unittype))) {
        case OvLcOptDataCtx::unit_metric:
            return "metric";
        case OvLcOptDataCtx::unit_british:
            return "british";
        default:
            return "us";
    }
}

}  // namespace

report::entry describe_locale(std::string key, OvLocale const& locale) {
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
    return report::section(
        std::move(key),
        {report::section("categories", std::move(categories)),
         report::text("encoding", locale.getEncoding()),
         report::text("terminal_encoding", opt_text(locale, OvLcOptDataCtx::termencoding)),
         report::text("terminal_input_encoding",
                      opt_text(locale, OvLcOptDataCtx::terminputencoding)),
         report::text("terminal_output_encoding",
                      opt_text(locale, OvLcOptDataCtx::termoutputencoding)),
         report::text("jvm_encoding", opt_text(locale, OvLcOptDataCtx::jvmencoding)),
         report::text("paper_size", paper_size_name(locale)),
         report::text("unit_system", unit_system_name(locale))});
}

report::entry describe_locale_information(std::string key) {
    static char const* const categories[] = {
        "Ctype", "Collate", "Time",    "Numeric",   "Monetary",    "Messages",
        "Paper", "Name",    "Address", "Telephone", "Measurement", "Identification"};
    std::vector<std::string> names;
    for (char const* prefix : {"InitialXpgLc", "XpgLc", "XpgEnvLc"}) {
        for (char const* category : categories) {
            names.push_back(prefix + std::string(category));
        }
    }
    names.insert(names.end(), {"XpgEnvLcAll", "XpgEnvLang", "XpgEncoding"});

    // The library hands the keys back sorted; show them in the order the decision runs instead.
    std::map<std::string, std::string> information = fl::i18n::OvLcUtil::getLocaleInformation();
    std::vector<report::entry> values;
    for (std::string const& name : names) {
        values.push_back(report::text(name, information[name]));
    }
    std::vector<std::string> events;
    for (int i = 1; information.count("ErrorEvent" + std::to_string(i)) != 0; ++i) {
        events.push_back(information["ErrorEvent" + std::to_string(i)]);
    }
    values.push_back(report::list("ErrorEvents", events));
    return report::section(std::move(key), std::move(values));
}

report::entry describe_database(std::string key) {
    std::string const file = fl::i18n::get_locale_database_file();
    return report::section(std::move(key),
                           {file.empty() ? report::null("file") : report::text("file", file),
                            report::list("warnings", fl::i18n::get_startup_warnings())});
}

report::entry describe_c_library(std::string key) {
    return report::section(std::move(key),
                           {report::text_or_null("setlocale", std::setlocale(LC_ALL, nullptr)),
                            report::text("codeset", nl_langinfo(CODESET))});
}

report::entry describe_icu_defaults(std::string key) {
    return report::section(std::move(key),
                           {report::text("default_locale", uloc_getDefault()),
                            report::text("default_converter", ucnv_getDefaultName())});
}

report::entry describe_messages_fallback(std::string key) {
    // UTF-8 whatever the process encoding, since the report must be readable as JSON.
    fl::i18n::codecvt_ustring_to_string const utf8("UTF-8", true);
    std::vector<std::string> names;
    for (fl::i18n::ustring const& name : fl::i18n::get_fallback_locales(OvLocale::global())) {
        names.push_back(fl::i18n::to_string(name, utf8));
    }
    return report::list(std::move(key), names);
}

report::entry describe_javavm_context(std::string key) {
    fl::i18n::javavm_init_context const context = fl::i18n::get_javavm_init_context();
    return report::section(
        std::move(key),
        {report::text("language", context.language), report::text("region", context.region),
         report::text("resource_language", context.resource_language),
         report::text("resource_region", context.resource_region),
         report::text("format_language", context.format_language),
         report::text("format_region", context.format_region),
         report::text("file_encoding", context.file_encoding)});
}

}  // namespace ovi18n_tool
