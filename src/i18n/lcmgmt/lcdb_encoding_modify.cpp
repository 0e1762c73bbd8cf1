#include <fl/i18n/lcmgmt/lcdb.hpp>

namespace fl {
namespace i18n {
namespace lcmgmt {
std::shared_ptr<encoding_entry_context> Lcdb::find_or_create_encoding(std::string const& name) {
    std::string key = normalise_encoding_key(name);
    auto const found = encodings_.find(key);
    if (found != encodings_.end()) {
        return found->second;
    }
    auto entry = std::make_shared<encoding_entry_context>();
    entry->name = intern(name);
    encodings_.emplace(std::move(key), entry);
    return entry;
}

std::int32_t Lcdb::modifyEncodingDataEntry(std::string const& name, std::string const& jvm_name,
                                           std::string const& compat) {
    if (name.empty()) {
        return empty_argument;
    }
    modifyJvmName(name, jvm_name);
    modifyCompatEncoding(name, compat);
    return done;
}

std::int32_t Lcdb::modifyJvmName(std::string const& name, std::string const& jvm_name) {
    if (name.empty()) {
        return empty_argument;
    }
    auto const entry = find_or_create_encoding(name);
    if (jvm_name.empty()) {
        entry->jvm_name = nullptr;
        return done;
    }
    entry->jvm_name = intern(jvm_name);
    // The JVM's name is an encoding name in its own right.
    find_or_create_encoding(jvm_name);
    return done;
}

std::int32_t Lcdb::modifyCompatEncoding(std::string const& name, std::string const& compat) {
    if (name.empty()) {
        return empty_argument;
    }
    find_or_create_encoding(name);
    std::string const key = normalise_encoding_key(name);
    if (compat.empty()) {
        compat_encodings_.erase(key);
        return done;
    }
    compat_encodings_[key] = find_or_create_encoding(compat)->name;
    return done;
}

std::int32_t Lcdb::modifyEncodingAlias(std::string const& name, std::string const& alias) {
    if (name.empty() || alias.empty()) {
        return empty_argument;
    }
    encodings_[normalise_encoding_key(alias)] = find_or_create_encoding(name);
    return done;
}

std::int32_t Lcdb::removeCompatEncoding(std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    compat_encodings_.erase(normalise_encoding_key(name));
    return done;
}

std::int32_t Lcdb::removeJvmName(std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    auto const found = encodings_.find(normalise_encoding_key(name));
    if (found == encodings_.end()) {
        return absent;
    }
    found->second->jvm_name = nullptr;
    return done;
}

std::int32_t Lcdb::removeEncoding(std::string const& name) {
    if (name.empty()) {
        return empty_argument;
    }
    return encodings_.erase(normalise_encoding_key(name)) == 0 ? absent : done;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
