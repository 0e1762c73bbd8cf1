#include <fl/i18n/lcmgmt/lcdb.hpp>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

template <class Map>
char const* find_in(Map const& map, std::string const& key) {
    auto const found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

}  // namespace

char const* Lcdb::find_lc_alias(std::string const& name) const {
    return name.empty() ? nullptr : find_in(lc_aliases_, normalise_locale_key(name));
}

char const* Lcdb::find_region_alias(std::string const& name) const {
    return name.empty() ? nullptr : find_in(region_aliases_, normalise_locale_key(name));
}

char const* Lcdb::find_default_encoding(std::string const& name) const {
    return name.empty() ? nullptr : find_in(default_encodings_, normalise_locale_key(name));
}

char const* Lcdb::find_xpg_name(std::string const& name) const {
    return name.empty() ? nullptr : find_in(xpg_names_, normalise_locale_key(name));
}

char const* Lcdb::find_compat_encoding(std::string const& name) const {
    return name.empty() ? nullptr : find_in(compat_encodings_, normalise_encoding_key(name));
}

char const* Lcdb::xpg_name_of(std::string const& name) const {
    if (char const* xpg = find_xpg_name(name)) {
        return xpg;
    }
    return find_xpg_name(canonical_locale_name(name));
}

std::string Lcdb::region_alias_of(std::string const& name) const {
    char const* alias = find_region_alias(name);
    return alias != nullptr ? std::string(alias) : std::string();
}

std::string Lcdb::opt_data_key(std::string const& locale, std::string const& key) const {
    std::string const canonical = canonical_locale_name(locale);
    return canonical.empty() ? canonical : canonical + ":" + key;
}

Lcdb::opt_data const& Lcdb::optional_data(std::string const& locale, std::string const& key) const {
    if (locale.empty() || key.empty()) {
        return empty_opt_data_;
    }
    std::string const stored_key = opt_data_key(locale, key);
    if (stored_key.empty()) {
        return empty_opt_data_;
    }
    auto const found = lc_opt_data_.find(stored_key);
    return found == lc_opt_data_.end() ? empty_opt_data_ : found->second;
}

std::shared_ptr<encoding_entry_context> Lcdb::find_encoding_entry(std::string const& name) const {
    if (name.empty()) {
        return nullptr;
    }
    auto const found = encodings_.find(normalise_encoding_key(name));
    return found == encodings_.end() ? nullptr : found->second;
}

char const* Lcdb::standard_encoding_name(std::string const& name) const {
    auto const entry = find_encoding_entry(name);
    return entry ? entry->name : nullptr;
}

char const* Lcdb::jvm_encoding_name(std::string const& name) const {
    auto const entry = find_encoding_entry(name);
    if (!entry) {
        return nullptr;
    }
    return entry->jvm_name != nullptr ? entry->jvm_name : entry->name;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
