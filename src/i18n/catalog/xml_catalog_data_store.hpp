#ifndef FL_I18N_CATALOG_XML_CATALOG_DATA_STORE_HPP
#define FL_I18N_CATALOG_XML_CATALOG_DATA_STORE_HPP

#include "i18n/catalog/message_catalog_data_store.hpp"

#include <unicode/unistr.h>
#include <boost/unordered_map.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

// Keeps texts by key, with backslash escapes resolved once at load time. The first text of a key
// wins; later ones are dropped without an error. An ill-formed escape leaves the text empty.
class XMLCatalogDataStore : public MessageCatalogDataStore {
public:
    XMLCatalogDataStore();

    void add_entry(std::string const& key, std::string const& text) override;

    // Null when key is absent.
    icu::UnicodeString const* find(std::string const& key) const;
    std::vector<std::string> keys() const;

private:
    boost::unordered_map<std::string, icu::UnicodeString> entries_;
};

}  // namespace i18n
}  // namespace fl

#endif
