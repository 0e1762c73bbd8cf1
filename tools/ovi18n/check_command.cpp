#include "catalog_check.hpp"
#include "check_html.hpp"
#include "commands.hpp"
#include "report.hpp"
#include "terminal_text.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <cstdio>
#include <fstream>
#include <iostream>

namespace ovi18n_tool {
namespace {

std::string percent_text(coverage_count const& c) {
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", c.percent());
    return text;
}

report::entry count_entry(coverage_count const& c, char const* name_key) {
    return report::section(std::string(),
                           {report::text(name_key, c.name),
                            report::literal("translated", std::to_string(c.translated)),
                            report::literal("total", std::to_string(c.total)),
                            report::literal("percent", percent_text(c))});
}

void print_json(std::ostream& out, std::string const& root, std::string const& reference,
                check_result const& result) {
    std::vector<report::entry> findings;
    for (finding const& f : result.findings) {
        findings.push_back(report::section(
            std::string(),
            {report::text("severity", f.error ? "error" : "warning"), report::text("kind", f.kind),
             report::text("file", f.file), report::literal("line", std::to_string(f.where.line)),
             report::literal("column", std::to_string(f.where.column)),
             report::text("message", f.message)}));
    }
    std::vector<report::entry> coverage;
    for (locale_coverage const& l : result.coverage) {
        report::entry entry = count_entry(l.overall, "locale");
        std::vector<report::entry> catalogs;
        for (coverage_count const& c : l.catalogs) {
            catalogs.push_back(count_entry(c, "catalog"));
        }
        entry.children.push_back(report::array("catalogs", std::move(catalogs)));
        coverage.push_back(std::move(entry));
    }
    report r;
    r.entries = {report::text("root", root),
                 report::text("reference_locale", reference),
                 report::literal("errors", std::to_string(result.errors)),
                 report::literal("warnings", std::to_string(result.warnings)),
                 report::array("findings", std::move(findings)),
                 report::array("coverage", std::move(coverage))};
    r.print_json(out);
}

void print_text(std::ostream& out, std::string const& reference, check_result const& result) {
    for (finding const& f : result.findings) {
        out << terminal_text(location_text(f)) << ": " << (f.error ? "error" : "warning") << ": "
            << terminal_text(f.message) << " [" << f.kind << "]\n";
    }
    out << "coverage against " << reference << ":\n";
    for (locale_coverage const& l : result.coverage) {
        out << "  " << terminal_text(l.overall.name) << ": " << percent_text(l.overall) << "% ("
            << l.overall.translated << " of " << l.overall.total << " messages)\n";
        for (coverage_count const& c : l.catalogs) {
            out << "    " << c.name << ": " << percent_text(c) << "% (" << c.translated << " of "
                << c.total << ")\n";
        }
    }
    out << result.errors << " errors, " << result.warnings << " warnings\n";
}

}  // namespace

int run_check(std::vector<std::string> const& args) {
    std::string root;
    std::string html;
    bool json = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        bool const has_value = i + 1 < args.size() && !args[i + 1].empty();
        if (args[i] == "--json") {
            json = true;
        } else if (args[i] == "--root" && has_value) {
            root = args[++i];
        } else if (args[i] == "--html" && has_value) {
            html = args[++i];
        } else if (root.empty() && !args[i].empty() && args[i][0] != '-') {
            // "ovi18n check data" reads as naturally as --root data in a build script.
            root = args[i];
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
    std::string const reference = reference_locale();
    check_result const result =
        check_resources(resources, scan_resource_tree(resources), reference);
    if (!html.empty()) {
        std::ofstream page(html, std::ios_base::out | std::ios_base::binary);
        write_check_html(page, root, reference, result);
        if (!page.good()) {
            std::cerr << "ovi18n: cannot write '" << html << "'\n";
            return 1;
        }
    }
    json ? print_json(std::cout, root, reference, result)
         : print_text(std::cout, reference, result);
    if (result.errors != 0) {
        std::cerr << "ovi18n: " << result.errors << " errors in '" << root << "'\n";
        return 1;
    }
    return 0;
}

}  // namespace ovi18n_tool
