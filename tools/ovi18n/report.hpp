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
        enum class kind { text, literal, null, object, array };

        std::string key;
        kind type = kind::text;
        std::string value;            // text, or a JSON literal (number, true, false)
        std::vector<entry> children;  // members of an object, items of an array (keys unused)
    };

    std::vector<entry> entries;

    static entry text(std::string key, std::string value) {
        return entry{std::move(key), entry::kind::text, std::move(value), {}};
    }
    static entry literal(std::string key, std::string value) {
        return entry{std::move(key), entry::kind::literal, std::move(value), {}};
    }
    // A value that isn't there at all, as distinct from an empty one: an unset variable.
    static entry null(std::string key) { return entry{std::move(key), entry::kind::null, {}, {}}; }
    static entry text_or_null(std::string key, char const* value) {
        return value == nullptr ? null(std::move(key)) : text(std::move(key), value);
    }
    static entry section(std::string key, std::vector<entry> children) {
        return entry{std::move(key), entry::kind::object, std::string(), std::move(children)};
    }
    static entry list(std::string key, std::vector<std::string> const& items);
    static entry array(std::string key, std::vector<entry> items) {
        return entry{std::move(key), entry::kind::array, std::string(), std::move(items)};
    }

    void print_text(std::ostream& out) const;
    void print_json(std::ostream& out) const;
    void print(std::ostream& out, bool json) const { json ? print_json(out) : print_text(out); }
};

}  // namespace ovi18n_tool

#endif
