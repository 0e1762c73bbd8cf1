#include "catalog_service_root.hpp"
#include "catalog_tree.hpp"
#include "commands.hpp"
#include "report.hpp"
#include "terminal_text.hpp"
#include "usage_error.hpp"
#include "utf8_text.hpp"

#include <fl/i18n.hpp>

#include <boost/shared_ptr.hpp>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace ovi18n_tool {
namespace {

using fl::i18n::OvLocale;

// An integer passes as a number, anything else as text.
resource_core::ArgList arguments(std::vector<std::string> const& texts) {
    resource_core::ArgList list;
    for (std::string const& text : texts) {
        char* end = nullptr;
        errno = 0;
        long const value = std::strtol(text.c_str(), &end, 10);
        bool const integer = !text.empty() && *end == '\0' && errno == 0 &&
                             text.find_first_of(" \t\n+") == std::string::npos;
        if (integer) {
            list.emplace_back(value);
        } else {
            list.emplace_back(from_utf8(text));
        }
    }
    return list;
}

struct step {
    std::string locale;
    std::string file;
    char const* outcome;
};

// The locales the lookup tries, in order, up to the one whose file served: the file for each
// that was passed over doesn't exist.
std::vector<step> walk(std::string const& resources, std::string const& catalog,
                       OvLocale const& locale, std::string const& served) {
    std::vector<step> steps;
    for (fl::i18n::ustring const& name : fl::i18n::get_fallback_locales(locale)) {
        std::string const text = to_utf8(name);
        std::string const file = catalog_path(resources, catalog, text);
        bool const hit = text == served;
        std::error_code ec;
        steps.push_back({text, file,
                         hit                                 ? "served"
                         : std::filesystem::exists(file, ec) ? "skipped"
                                                             : "no file"});
        if (hit) {
            break;
        }
    }
    return steps;
}

int show_message(std::string const& resources, fl::i18n::MessageID const& id,
                 OvLocale const& locale, std::vector<std::string> const& texts, bool json) {
    std::string const catalog_name = id.getCatalogID();
    boost::shared_ptr<fl::i18n::MessageCatalog const> const catalog =
        fl::i18n::MessageCatalog::GetMessageCatalog(fl::i18n::CatalogID(catalog_name), locale);
    std::string const served = catalog->get_catalog_locale();
    std::string const text = to_utf8(fl::i18n::MessageCatalog::get_message(
        resource_core::BaseMsgID(catalog_name, id.getMsgKey(), arguments(texts)), locale));
    std::vector<step> const steps = walk(resources, catalog_name, locale, served);

    std::string path;
    std::string summary;
    std::vector<report::entry> walked;
    for (step const& s : steps) {
        summary += (summary.empty() ? "" : ", ") + s.locale + ": " + s.outcome;
        walked.push_back(report::section(
            std::string(), {report::text("locale", s.locale), report::text("file", s.file),
                            report::text("outcome", s.outcome)}));
        path = s.file;
    }
    std::string const asked = locale.getLocaleName(OvLocale::messages);
    if (json) {
        report r;
        r.entries = {report::text("id", id.getCompositeID()),
                     report::text("locale", asked),
                     report::text("text", text),
                     report::text("served_by", served),
                     report::text("file", path),
                     report::array("walk", std::move(walked))};
        r.print_json(std::cout);
    } else {
        // The message as it is, so that it can be piped; the explanation after it.
        std::cout << text << "\n"
                  << "locale: " << terminal_text(asked) << "\n"
                  << "served by: " << terminal_text(served) << " (" << terminal_text(path) << ")\n"
                  << "walk: " << terminal_text(summary) << "\n";
    }
    return 0;
}

}  // namespace

int run_message(std::vector<std::string> const& args) {
    std::string root;
    std::string locale_name;
    bool json = false;
    std::vector<std::string> operands;
    for (std::size_t i = 0; i < args.size(); ++i) {
        bool const has_value = i + 1 < args.size() && !args[i + 1].empty();
        if (args[i] == "--json") {
            json = true;
        } else if (args[i] == "--root" && has_value) {
            root = args[++i];
        } else if (args[i] == "--locale" && has_value) {
            locale_name = args[++i];
        } else if (args[i].rfind("--", 0) == 0) {
            return usage_error("unknown argument '" + args[i] + "'");
        } else {
            operands.push_back(args[i]);
        }
    }
    if (operands.empty()) {
        return usage_error("message needs a message id, such as component:catalog:key");
    }
    fl::i18n::MessageID id;
    try {
        id = fl::i18n::MessageID(operands[0]);
    } catch (fl::i18n::MessageID::badMessageIDException const&) {
        return usage_error("'" + operands[0] + "' is no message id (component:catalog:key)");
    }
    std::string const resources = start_catalog_service(root);
    if (resources.empty()) {
        return 1;
    }
    boost::shared_ptr<OvLocale> created;
    if (!locale_name.empty()) {
        try {
            created = OvLocale::createLocale(locale_name);
        } catch (fl::i18n::OvLcMgmtExceptionBase const&) {
            std::cerr << "ovi18n: unknown locale '" << terminal_text(locale_name) << "'\n";
            return 1;
        }
    }
    return show_message(resources, id, created ? *created : OvLocale::global(),
                        std::vector<std::string>(operands.begin() + 1, operands.end()), json);
}

}  // namespace ovi18n_tool
