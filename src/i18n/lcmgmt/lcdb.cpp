#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "common/ascii.hpp"
#include "i18n/lcmgmt/lcdb_builtin_data.hpp"

#include <cstring>
#include <exception>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

// Every table starts small: the built-in data fills them at once, and lcdata.xml adds little.
constexpr std::size_t initial_buckets = 10;

template <class Map>
void prepare(Map& map) {
    map.max_load_factor(1.0f);
    map.rehash(initial_buckets);
}

std::string alias_name(builtin::locale_alias_row const& row) {
    std::string name = row.language;
    if (*row.script != '\0') {
        name += '-';
        name += row.script;
    }
    if (*row.region != '\0') {
        name += row.separator;
        name += row.region;
    }
    if (*row.variant != '\0') {
        name += '_';
        name += row.variant;
    }
    return name;
}

}  // namespace

std::string normalise_locale_key(std::string const& name) {
    std::string key = detail::to_ascii_lower(name);
    for (char& c : key) {
        if (c == '_') {
            c = '-';
        }
    }
    return key;
}

std::string normalise_encoding_key(std::string const& name) {
    return detail::to_ascii_lower(name);
}

Lcdb::Lcdb() {
    prepare(language_entries_);
    prepare(script_index_);
    prepare(region_index_);
    prepare(encodings_);
    prepare(lc_aliases_);
    prepare(region_aliases_);
    prepare(default_encodings_);
    prepare(xpg_names_);
    prepare(compat_encodings_);
    prepare(lc_opt_data_);
    prepare(string_pool_);
    try {
        fill_builtin_tables();
    } catch (std::exception const& e) {
        // The tables stay as far as they got; start-up reports the status instead of failing.
        status_ = builtin_tables_failed;
        status_message_ = e.what();
    }
}

Lcdb::~Lcdb() = default;

void Lcdb::fill_builtin_tables() {
    for (std::size_t i = 0; i < builtin::script_name_count; ++i) {
        script_index_[detail::to_ascii_lower(builtin::script_names[i])] =
            static_cast<std::uint16_t>(i);
    }
    for (std::size_t i = 0; i < builtin::region_name_count; ++i) {
        region_index_[detail::to_ascii_lower(builtin::region_names[i])] =
            static_cast<std::uint16_t>(i);
    }
    for (std::size_t i = 0; i < builtin::language_row_count; ++i) {
        language_entry const& row = builtin::language_rows[i];
        language_entries_[detail::to_ascii_lower(builtin::language_names[row.language])].push_back(
            row);
    }
    for (std::size_t i = 0; i < builtin::encoding_row_count; ++i) {
        builtin::encoding_row const& row = builtin::encoding_rows[i];
        auto entry = std::make_shared<encoding_entry_context>();
        entry->name = row.name;
        entry->jvm_name = row.jvm_name;
        for (std::size_t a = row.first_alias; a < std::size_t(row.first_alias) + row.alias_count;
             ++a) {
            encodings_[normalise_encoding_key(builtin::encoding_alias_names[a])] = entry;
        }
        encodings_[normalise_encoding_key(row.name)] = entry;
    }
    for (std::size_t i = 0; i < builtin::locale_alias_row_count; ++i) {
        builtin::locale_alias_row const& row = builtin::locale_alias_rows[i];
        lc_aliases_[normalise_locale_key(alias_name(row))] =
            builtin::canonical_locale_names[row.canonical];
    }
    for (std::size_t i = 0; i < builtin::default_encoding_row_count; ++i) {
        builtin::default_encoding_row const& row = builtin::default_encoding_rows[i];
        default_encodings_[normalise_locale_key(row.locale)] = row.encoding;
    }
}

char const* Lcdb::intern(std::string const& text) {
    auto found = string_pool_.find(text);
    if (found != string_pool_.end()) {
        return found->second.get();
    }
    std::unique_ptr<char[]> copy(new char[text.size() + 1]);
    std::memcpy(copy.get(), text.c_str(), text.size() + 1);
    char const* result = copy.get();
    string_pool_.emplace(text, std::move(copy));
    return result;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
