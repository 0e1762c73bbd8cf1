#include "report.hpp"

#include <cstdio>

namespace ovi18n_tool {
namespace {

void print_text_entries(std::ostream& out, std::vector<report::entry> const& entries,
                        std::size_t depth) {
    std::string const indent(depth * 2, ' ');
    for (report::entry const& e : entries) {
        if (e.is_section) {
            out << indent << e.key << ":\n";
            print_text_entries(out, e.children, depth + 1);
        } else {
            out << indent << e.key << ":" << (e.value.empty() ? "" : " ") << e.value << "\n";
        }
    }
}

std::string json_quote(std::string const& s) {
    std::string out = "\"";
    for (unsigned char c : s) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (c < 0x20) {
                    char buffer[8];
                    std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
                    out += buffer;
                } else {
                    out += static_cast<char>(c);
                }
        }
    }
    return out + "\"";
}

void print_json_entries(std::ostream& out, std::vector<report::entry> const& entries,
                        std::size_t depth) {
    std::string const indent((depth + 1) * 2, ' ');
    out << "{\n";
    for (std::size_t i = 0; i < entries.size(); ++i) {
        report::entry const& e = entries[i];
        out << indent << json_quote(e.key) << ": ";
        if (e.is_section) {
            print_json_entries(out, e.children, depth + 1);
        } else {
            out << (e.is_text ? json_quote(e.value) : e.value);
        }
        out << (i + 1 < entries.size() ? ",\n" : "\n");
    }
    out << std::string(depth * 2, ' ') << "}";
}

}  // namespace

void report::print_text(std::ostream& out) const {
    print_text_entries(out, entries, 0);
}

void report::print_json(std::ostream& out) const {
    print_json_entries(out, entries, 0);
    out << "\n";
}

}  // namespace ovi18n_tool
