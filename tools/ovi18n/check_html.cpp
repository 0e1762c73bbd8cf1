#include "check_html.hpp"

#include <cstdio>

namespace ovi18n_tool {
namespace {

std::string escaped(std::string const& text) {
    std::string out;
    for (char const c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

void bar_cell(std::ostream& out, coverage_count const& c) {
    char percent[16];
    std::snprintf(percent, sizeof percent, "%.1f", c.percent());
    char const* const tone = c.translated == c.total ? "full" : c.translated == 0 ? "none" : "part";
    out << "<td><div class=\"bar\"><div class=\"" << tone << "\" style=\"width:" << percent
        << "%\"></div></div>" << percent << "% <small>(" << c.translated << "/" << c.total
        << ")</small></td>";
}

char const* const style =
    "body{font-family:sans-serif;margin:2em;color:#222}"
    "table{border-collapse:collapse;margin-bottom:2em}"
    "th,td{border:1px solid #ccc;padding:.3em .6em;text-align:left;vertical-align:top}"
    "th{background:#f2f2f2}"
    ".bar{width:8em;height:.7em;background:#eee;border-radius:3px;overflow:hidden}"
    ".bar div{height:100%}.full{background:#3a3}.part{background:#e90}.none{background:#c33}"
    ".error{color:#b00}.warning{color:#960}tr.total td{font-weight:bold}";

}  // namespace

void write_check_html(std::ostream& out, std::string const& root, std::string const& reference,
                      check_result const& result) {
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Catalog check: "
        << escaped(root) << "</title><style>" << style << "</style></head><body>\n"
        << "<h1>Catalog check</h1><p>" << escaped(root) << ": " << result.errors << " errors, "
        << result.warnings << " warnings; coverage against " << escaped(reference) << ".</p>\n";
    if (!result.coverage.empty()) {
        out << "<table><tr><th>catalog</th>";
        for (locale_coverage const& l : result.coverage) {
            out << "<th>" << escaped(l.overall.name) << "</th>";
        }
        out << "</tr>\n";
        std::size_t const rows = result.coverage.front().catalogs.size();
        for (std::size_t row = 0; row < rows; ++row) {
            out << "<tr><td>" << escaped(result.coverage.front().catalogs[row].name) << "</td>";
            for (locale_coverage const& l : result.coverage) {
                bar_cell(out, l.catalogs[row]);
            }
            out << "</tr>\n";
        }
        out << "<tr class=\"total\"><td>all catalogs</td>";
        for (locale_coverage const& l : result.coverage) {
            bar_cell(out, l.overall);
        }
        out << "</tr></table>\n";
    }
    out << "<h2>Findings</h2>\n";
    if (result.findings.empty()) {
        out << "<p>None.</p>\n";
    } else {
        out << "<table><tr><th>severity</th><th>where</th><th>kind</th><th>finding</th></tr>\n";
        for (finding const& f : result.findings) {
            char const* const severity = f.error ? "error" : "warning";
            out << "<tr class=\"" << severity << "\"><td>" << severity << "</td><td>"
                << escaped(location_text(f)) << "</td><td>" << f.kind << "</td><td>"
                << escaped(f.message) << "</td></tr>\n";
        }
        out << "</table>\n";
    }
    out << "</body></html>\n";
}

}  // namespace ovi18n_tool
