#ifndef FL_I18N_CATALOG_MESSAGE_CATALOG_IMPL_HPP
#define FL_I18N_CATALOG_MESSAGE_CATALOG_IMPL_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>

#include "i18n/catalog/message_catalog_file_loader.hpp"
#include "i18n/catalog/xml_catalog_data_store.hpp"

#include <memory>
#include <string>
#include <vector>

namespace fl {
namespace i18n {

// A catalog read in full from one file at construction; a file that is missing or does not
// parse throws MessageCatalogLoadFailed, so a half-read catalog never exists.
class MessageCatalogImpl : public MessageCatalog {
public:
    // locale is that of the file found, which may be a fallback of the one asked for.
    MessageCatalogImpl(std::string const& catalog_name, fl::filesystem::upath const& file,
                       std::string const& locale);

    ustring get_message_text(std::string const& key) const override;
    std::vector<std::string> get_message_keys() const override;
    std::string get_catalog_locale() const override { return locale_; }
    ustring format_message(resource_core::BaseMsgID const& id) const override;
    std::string get_catalog_name() const override { return catalog_name_; }

private:
    std::string catalog_name_;
    fl::filesystem::upath file_;
    std::string locale_;
    std::unique_ptr<MessageCatalogFileLoader> loader_;
    std::unique_ptr<XMLCatalogDataStore> store_;
    bool loaded_;
};

}  // namespace i18n
}  // namespace fl

#endif
