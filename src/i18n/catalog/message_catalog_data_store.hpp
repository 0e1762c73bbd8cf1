#ifndef FL_I18N_CATALOG_MESSAGE_CATALOG_DATA_STORE_HPP
#define FL_I18N_CATALOG_MESSAGE_CATALOG_DATA_STORE_HPP

#include <string>

namespace fl {
namespace i18n {

// Where a catalog reader puts each message it has read; key and text are UTF-8.
class MessageCatalogDataStore {
public:
    virtual void add_entry(std::string const& key, std::string const& text) = 0;
    virtual ~MessageCatalogDataStore() = default;
};

}  // namespace i18n
}  // namespace fl

#endif
