#include <fl/i18n/lcmgmt/lcdb.hpp>

#include <cstring>

namespace fl {
namespace i18n {
namespace lcmgmt {

// The key under which everything about a locale is stored: the name's own key when it is a known
// alias or resolves to no language (then it becomes a canonical name of its own), else the key
// of the name it resolves to.
std::string Lcdb::register_locale(std::string const& name) {
    std::string const key = normalise_locale_key(name);
    if (lc_aliases_.count(key) != 0) {
        return key;
    }
    analysis found;
    if (!analyse_locale_name(name, found)) {
        lc_aliases_[key] = intern(name);
        return key;
    }
    return normalise_locale_key(found.canonical_name);
}

std::int32_t Lcdb::modifyLcEntry(std::string const& name, std::string const& encoding,
                                 std::string const& xpg_name) {
    if (name.empty()) {
        return empty_argument;
    }
    std::string const key = register_locale(name);
    if (encoding.empty()) {
        default_encodings_.erase(key);
    } else {
        default_encodings_[key] = intern(encoding);
    }
    if (xpg_name.empty()) {
        xpg_names_.erase(key);
    } else {
        xpg_names_[key] = intern(xpg_name);
    }
    return done;
}

std::int32_t Lcdb::modifyDefEncoding(std::string const& name, std::string const& encoding) {
    if (name.empty()) {
        return empty_argument;
    }
    std::string const key = register_locale(name);
    if (encoding.empty()) {
        default_encodings_.erase(key);
    } else {
        default_encodings_[key] = intern(encoding);
    }
    return done;
}

std::int32_t Lcdb::modifyXpgName(std::string const& name, std::string const& xpg_name) {
    if (name.empty() || xpg_name.empty()) {
        return empty_argument;
    }
    xpg_names_[register_locale(name)] = intern(xpg_name);
    return done;
}

std::int32_t Lcdb::modify_alias(name_map& table, bool region_table, std::string const& name,
                                std::string const& alias) {
    if (name.empty() || alias.empty()) {
        return empty_argument;
    }
    std::string const resolved =
        region_table ? region_alias_of(alias) : canonical_locale_name(alias);
    if (!resolved.empty() && resolved == name) {
        return nothing_to_do;
    }
    std::string const key = normalise_locale_key(name);
    auto found = table.find(key);
    if (found == table.end() || name != found->second) {
        table[key] = intern(name);
        found = table.find(key);
    }
    if (found == table.end()) {
        return absent;
    }
    char const* target = found->second;
    table[normalise_locale_key(alias)] = target;
    return done;
}

std::int32_t Lcdb::modifyLcAliasName(std::string const& name, std::string const& alias) {
    return modify_alias(lc_aliases_, false, name, alias);
}

std::int32_t Lcdb::modifyRegionAliasName(std::string const& name, std::string const& alias) {
    return modify_alias(region_aliases_, true, name, alias);
}

std::int32_t Lcdb::remove_alias(name_map& table, std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    auto const found = table.find(normalise_locale_key(name));
    if (found == table.end()) {
        return absent;
    }
    // A name that stands for itself is a canonical name: the aliases pointing at it need it.
    if (name == found->second) {
        return protected_entry;
    }
    table.erase(found);
    return done;
}

std::int32_t Lcdb::removeLcAliasName(std::string const& name) {
    return remove_alias(lc_aliases_, name);
}

std::int32_t Lcdb::removeRegionAliasName(std::string const& name) {
    return remove_alias(region_aliases_, name);
}

std::int32_t Lcdb::removeDefEncoding(std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    default_encodings_.erase(normalise_locale_key(name));
    return done;
}

std::int32_t Lcdb::removeXpgName(std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    xpg_names_.erase(normalise_locale_key(name));
    return done;
}

std::int32_t Lcdb::modifyLcOptData(std::string const& locale, std::string const& key,
                                   std::string const& value, ustring const& uvalue) {
    if (locale.empty() || key.empty() || (value.empty() && uvalue.empty())) {
        return empty_argument;
    }
    std::string const stored_key = opt_data_key(locale, key);
    if (stored_key.empty()) {
        return protected_entry;
    }
    lc_opt_data_[stored_key] = opt_data(value, uvalue);
    return done;
}

std::int32_t Lcdb::removeLcOptData(std::string const& locale, std::string const& key) {
    if (locale.empty() || key.empty()) {
        return empty_argument;
    }
    std::string const stored_key = opt_data_key(locale, key);
    if (stored_key.empty()) {
        return protected_entry;
    }
    return lc_opt_data_.erase(stored_key) == 0 ? absent : done;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
