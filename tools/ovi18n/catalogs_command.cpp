#include "catalog_file_reader.hpp"
#include "catalog_tree.hpp"
#include "commands.hpp"
#include "report.hpp"
#include "terminal_text.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <iostream>
#include <map>
#include <set>

namespace ovi18n_tool {
namespace {

struct catalog_summary {
    catalog_file_ref ref;
    std::size_t entries = 0;  // one per key, as the library keeps them
    std::string error;        // why the file doesn't load
};

catalog_summary summarize(catalog_file_ref const& ref) {
    catalog_file const file = read_catalog_file(ref.path);
    catalog_summary summary{ref, 0, file.loaded ? std::string() : file.error};
    std::set<std::string> keys;
    for (catalog_entry const& e : file.entries) {
        keys.insert(e.key);
    }
    summary.entries = keys.size();
    return summary;
}

report::entry describe(catalog_summary const& c) {
    std::vector<report::entry> fields{report::text("catalog", c.ref.catalog),
                                      report::text("file", c.ref.path)};
    if (c.error.empty()) {
        fields.push_back(report::literal("entries", std::to_string(c.entries)));
    } else {
        fields.push_back(report::null("entries"));
        fields.push_back(report::text("error", c.error));
    }
    return report::section(std::string(), std::move(fields));
}

using by_locale = std::map<std::string, std::vector<catalog_summary>>;

void print_json(std::ostream& out, std::string const& root, by_locale const& catalogs) {
    std::vector<report::entry> locales;
    for (auto const& [locale, list] : catalogs) {
        std::vector<report::entry> items;
        for (catalog_summary const& c : list) {
            items.push_back(describe(c));
        }
        locales.push_back(report::section(
            std::string(),
            {report::text("locale", locale), report::array("catalogs", std::move(items))}));
    }
    report r;
    r.entries = {report::text("root", root), report::array("locales", std::move(locales))};
    r.print_json(out);
}

void print_text(std::ostream& out, by_locale const& catalogs) {
    for (auto const& [locale, list] : catalogs) {
        out << terminal_text(locale) << ":\n";
        for (catalog_summary const& c : list) {
            out << "  " << c.ref.catalog << "\t"
                << (c.error.empty()
                        ? std::to_string(c.entries) + (c.entries == 1 ? " entry" : " entries")
                        : "does not load: " + c.error)
                << "\n";
        }
    }
}

}  // namespace

int run_catalogs(std::vector<std::string> const& args) {
    std::string root;
    bool json = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--json") {
            json = true;
        } else if (args[i] == "--root" && i + 1 < args.size() && !args[i + 1].empty()) {
            root = args[++i];
        } else {
            return usage_error("unknown argument '" + args[i] + "'");
        }
    }
    fl::i18n::initialize();
    root = installation_root(root);
    std::string const resources = resources_directory(root);
    if (resources.empty()) {
        return 1;
    }
    by_locale catalogs;
    for (catalog_file_ref const& ref : scan_resource_tree(resources).files) {
        catalogs[ref.locale].push_back(summarize(ref));
    }
    json ? print_json(std::cout, root, catalogs) : print_text(std::cout, catalogs);
    return 0;
}

}  // namespace ovi18n_tool
