#ifndef FL_I18N_CATALOG_MESSAGE_CATALOG_FILE_LOADER_HPP
#define FL_I18N_CATALOG_MESSAGE_CATALOG_FILE_LOADER_HPP

#include <fl/filesystem/basic_path.hpp>

#include "i18n/catalog/message_catalog_data_store.hpp"

namespace fl {
namespace i18n {

// Reads one catalog file into a store; false when the file is missing or malformed.
class MessageCatalogFileLoader {
public:
    virtual bool load(fl::filesystem::upath const& file, MessageCatalogDataStore* store) = 0;
    virtual ~MessageCatalogFileLoader() = default;
};

// The XML catalog format.
class XMLCatalogFileLoader : public MessageCatalogFileLoader {
public:
    bool load(fl::filesystem::upath const& file, MessageCatalogDataStore* store) override;
};

}  // namespace i18n
}  // namespace fl

#endif
