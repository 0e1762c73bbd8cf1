#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "common/ascii.hpp"
#include "i18n/lcmgmt/lcdb_builtin_data.hpp"

#include <cstring>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

// Position of a lower-case needle in a table string, ignoring the table string's case; the
// table strings are static, so they are never copied for a search.
std::size_t find_ignoring_case(char const* haystack, std::string const& needle) {
    std::size_t const length = std::strlen(haystack);
    if (needle.size() > length) {
        return std::string::npos;
    }
    for (std::size_t at = 0; at + needle.size() <= length; ++at) {
        std::size_t i = 0;
        while (i < needle.size() && detail::to_ascii_lower(haystack[at + i]) == needle[i]) {
            ++i;
        }
        if (i == needle.size()) {
            return at;
        }
    }
    return std::string::npos;
}

std::string to_ascii_upper(std::string s) {
    for (char& c : s) {
        if (c >= 'a' && c <= 'z') {
            c = char(c - 'a' + 'A');
        }
    }
    return s;
}

std::uint16_t index_in(std::unordered_map<std::string, std::uint16_t> const& index,
                       std::string const& name) {
    auto const found = index.find(detail::to_ascii_lower(name));
    return found == index.end() ? no_index : found->second;
}

}  // namespace

std::vector<language_entry> const& Lcdb::language_rows(std::string const& language) const {
    static std::vector<language_entry> const* const none = new std::vector<language_entry>();
    auto const found = language_entries_.find(language);
    return found == language_entries_.end() ? *none : found->second;
}

language_entry Lcdb::find_language_entry(std::string const& language, std::string const& script,
                                         std::string const& region) const {
    std::size_t candidates = 0;
    language_entry last = null_language_entry();
    language_entry preferred = null_language_entry();
    for (language_entry const& row : language_rows(language)) {
        bool script_matched = false;
        if (!script.empty() && row.script != no_index) {
            if (find_ignoring_case(builtin::script_names[row.script], script) ==
                std::string::npos) {
                continue;
            }
            script_matched = true;
        }
        if (!region.empty() && row.region != no_index) {
            if (std::strstr(builtin::region_names[row.region], region.c_str()) == nullptr) {
                continue;
            }
            if (script_matched) {
                return row;
            }
        }
        ++candidates;
        last = row;
        if (row.is_default == 1) {
            preferred = row;
        }
    }
    if (!preferred.is_null()) {
        return preferred;
    }
    return candidates == 1 ? last : null_language_entry();
}

language_entry Lcdb::find_locale_entry(locale_name_context const& name) const {
    std::string const language = detail::to_ascii_lower(name.language);
    if (name.script.empty() && name.region.empty()) {
        std::vector<language_entry> const& rows = language_rows(language);
        if (rows.size() == 1) {
            language_entry row = rows.front();
            char const* region = region_of(row);
            // A single region, not a list: the language names its one place of use.
            if (region == nullptr || std::strlen(region) < 4) {
                row.script = no_index;
                return row;
            }
        }
    }
    std::string const script = detail::to_ascii_lower(name.script);
    // Without a region, the language stands in for it: "de" looks for DE, "fr" for FR.
    std::string const region = to_ascii_upper(name.region.empty() ? name.language : name.region);
    language_entry row = find_language_entry(language, script, region);
    if (row.is_null()) {
        return row;
    }
    if (script.empty()) {
        row.script = no_index;
    } else if (row.script != no_index) {
        char const* scripts = builtin::script_names[row.script];
        std::size_t const at = find_ignoring_case(scripts, script);
        row.script = at == std::string::npos
                         ? no_index
                         : index_in(script_index_, std::string(scripts + at, 4));
    }
    if (row.region != no_index) {
        char const* regions = builtin::region_names[row.region];
        char const* at = std::strstr(regions, region.c_str());
        row.region =
            at == nullptr ? no_index : index_in(region_index_, std::string(at, region.size()));
    }
    return row;
}

char const* Lcdb::language_of(language_entry const& entry) const {
    return entry.language < builtin::language_name_count ? builtin::language_names[entry.language]
                                                         : nullptr;
}

char const* Lcdb::script_of(language_entry const& entry) const {
    return entry.script < builtin::script_name_count ? builtin::script_names[entry.script]
                                                     : nullptr;
}

char const* Lcdb::region_of(language_entry const& entry) const {
    return entry.region < builtin::region_name_count ? builtin::region_names[entry.region]
                                                     : nullptr;
}

char const* Lcdb::encoding_of(language_entry const& entry) const {
    return entry.encoding < builtin::encoding_row_count
               ? builtin::encoding_rows[entry.encoding].name
               : nullptr;
}

std::string Lcdb::canonical_name_of(language_entry const& entry) const {
    char const* language = language_of(entry);
    if (language == nullptr || *language == '\0') {
        return std::string();
    }
    std::string name = language;
    if (char const* script = script_of(entry)) {
        name += '-';
        name += script;
    }
    if (char const* region = region_of(entry)) {
        name += '_';
        name += region;
    }
    return name;
}

std::string Lcdb::canonical_locale_name(std::string const& name) const {
    if (name.empty()) {
        return std::string();
    }
    if (char const* alias = find_lc_alias(name)) {
        return alias;
    }
    return canonical_name_of(find_locale_entry(parse_locale_name(name)));
}

char const* Lcdb::default_encoding_of(std::string const& name) const {
    if (name.empty()) {
        return "";
    }
    char const* alias = find_lc_alias(name);
    std::string const locale = alias != nullptr ? std::string(alias) : name;
    if (char const* encoding = find_default_encoding(locale)) {
        return encoding;
    }
    language_entry const row = find_locale_entry(parse_locale_name(locale));
    if (row.is_null()) {
        return "UTF-8";
    }
    if (char const* encoding = find_default_encoding(canonical_name_of(row))) {
        return encoding;
    }
    char const* encoding = encoding_of(row);
    return encoding != nullptr ? encoding : "UTF-8";
}

bool Lcdb::analyse_locale_name(std::string const& name, analysis& out) const {
    language_entry const row = find_locale_entry(parse_locale_name(name));
    std::string canonical = canonical_name_of(row);
    if (canonical.empty()) {
        return false;
    }
    out.canonical_name = std::move(canonical);
    char const* encoding = encoding_of(row);
    out.encoding = encoding != nullptr ? encoding : "";
    return true;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
