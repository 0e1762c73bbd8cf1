#include "i18n/catalog/xml_catalog_data_store.hpp"

#include <unicode/ustring.h>
#include <boost/numeric/conversion/cast.hpp>

namespace fl {
namespace i18n {
namespace {

// Texts from the parser are well-formed UTF-8 already, and for those a direct conversion gives
// exactly what a "UTF-8" converter gives, without opening one per message. Other bytes take the
// converter, so its substitution of ill-formed sequences is kept.
icu::UnicodeString from_utf8(std::string const& text) {
    int32_t const length = boost::numeric_cast<int32_t>(text.size());
    icu::UnicodeString result;
    UChar* const buffer = result.getBuffer(length);
    if (buffer != nullptr) {
        int32_t written = 0;
        UErrorCode status = U_ZERO_ERROR;
        u_strFromUTF8(buffer, length, &written, text.data(), length, &status);
        result.releaseBuffer(U_SUCCESS(status) ? written : 0);
        if (U_SUCCESS(status)) {
            return result;
        }
    }
    return icu::UnicodeString(text.data(), length, "UTF-8");
}

}  // namespace

XMLCatalogDataStore::XMLCatalogDataStore() : entries_(16) {
    entries_.max_load_factor(1.0F);
}

void XMLCatalogDataStore::add_entry(std::string const& key, std::string const& text) {
    // One lookup both finds an earlier entry of the key and makes the slot of a new one.
    auto const slot = entries_.try_emplace(key);
    if (!slot.second) {
        return;
    }
    try {
        icu::UnicodeString& value = slot.first->second;
        value = from_utf8(text);
        // unescape() of a text without a backslash is the text itself; skipping it saves a copy.
        if (text.find('\\') != std::string::npos) {
            value = value.unescape();
        }
    } catch (...) {
        entries_.erase(slot.first);
        throw;
    }
}

icu::UnicodeString const* XMLCatalogDataStore::find(std::string const& key) const {
    auto const found = entries_.find(key);
    return found == entries_.end() ? nullptr : &found->second;
}

std::vector<std::string> XMLCatalogDataStore::keys() const {
    std::vector<std::string> result;
    result.reserve(entries_.size());
    for (auto const& entry : entries_) {
        result.push_back(entry.first);
    }
    return result;
}

}  // namespace i18n
}  // namespace fl
