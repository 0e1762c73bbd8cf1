#ifndef OVI18N_TOOL_REPORT_HPP
#define OVI18N_TOOL_REPORT_HPP

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ovi18n_tool {

// An ordered tree of named values, printed as indented text or as JSON.
struct report {
    struct entry {
        std::string key;
        std::string value;
        bool is_text = true;  // false: value is a JSON literal (number, true, false)
        std::vector<entry> children;
        bool is_section = false;
    };

    std::vector<entry> entries;

    static entry text(std::string key, std::string value) {
        return entry{std::move(key), std::move(value), true, {}, false};
    }
    static entry literal(std::string key, std::string value) {
        return entry{std::move(key), std::move(value), false, {}, false};
    }
    static entry section(std::string key, std::vector<entry> children) {
        return entry{std::move(key), std::string(), false, std::move(children), true};
    }

    void print_text(std::ostream& out) const;
    void print_json(std::ostream& out) const;
};

}  // namespace ovi18n_tool

#endif
