#include "report.hpp"

#include "json_string.hpp"
#include "terminal_text.hpp"

namespace ovi18n_tool {
namespace {

using kind = report::entry::kind;

void print_text_entries(std::ostream& out, std::vector<report::entry> const& entries,
                        std::size_t depth, bool items) {
    std::string const indent(depth * 2, ' ');
    for (report::entry const& e : entries) {
        std::string const label = items ? "-" : terminal_text(e.key) + ":";
        switch (e.type) {
            case kind::object:
                out << indent << label << "\n";
                print_text_entries(out, e.children, depth + 1, false);
                break;
            case kind::array:
                out << indent << label << (e.children.empty() ? " (none)" : "") << "\n";
                print_text_entries(out, e.children, depth + 1, true);
                break;
            case kind::null:
                out << indent << label << " (unset)\n";
                break;
            default:
                out << indent << label << (e.value.empty() ? "" : " ") << terminal_text(e.value)
                    << "\n";
        }
    }
}

void print_json_value(std::ostream& out, report::entry const& e, std::size_t depth);

void print_json_members(std::ostream& out, std::vector<report::entry> const& members,
                        std::size_t depth, bool items) {
    std::string const indent((depth + 1) * 2, ' ');
    out << (items ? "[" : "{");
    for (std::size_t i = 0; i < members.size(); ++i) {
        out << (i == 0 ? "\n" : ",\n") << indent;
        if (!items) {
            out << json_quote(members[i].key) << ": ";
        }
        print_json_value(out, members[i], depth + 1);
    }
    if (!members.empty()) {
        out << "\n" << std::string(depth * 2, ' ');
    }
    out << (items ? "]" : "}");
}

void print_json_value(std::ostream& out, report::entry const& e, std::size_t depth) {
    switch (e.type) {
        case kind::object:
            print_json_members(out, e.children, depth, false);
            break;
        case kind::array:
            print_json_members(out, e.children, depth, true);
            break;
        case kind::null:
            out << "null";
            break;
        case kind::literal:
            out << e.value;
            break;
        case kind::text:
            out << json_quote(e.value);
            break;
    }
}

}  // namespace

report::entry report::list(std::string key, std::vector<std::string> const& items) {
    entry result{std::move(key), entry::kind::array, std::string(), {}};
    for (std::string const& item : items) {
        result.children.push_back(text(std::string(), item));
    }
    return result;
}

void report::print_text(std::ostream& out) const {
    print_text_entries(out, entries, 0, false);
}

void report::print_json(std::ostream& out) const {
    print_json_members(out, entries, 0, false);
    out << "\n";
}

}  // namespace ovi18n_tool
