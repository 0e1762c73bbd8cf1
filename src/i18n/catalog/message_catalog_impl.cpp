#include "i18n/catalog/message_catalog_impl.hpp"

#include "common/throw_exception.hpp"
#include "i18n/catalog/format_text.hpp"

namespace fl {
namespace i18n {

MessageCatalogImpl::MessageCatalogImpl(std::string const& catalog_name,
                                       fl::filesystem::upath const& file, std::string const& locale)
    : catalog_name_(catalog_name),
      file_(file),
      locale_(locale),
      loader_(new XMLCatalogFileLoader),
      store_(new XMLCatalogDataStore),
      loaded_(false) {
    try {
        loaded_ = loader_->load(file_, store_.get());
    } catch (std::exception const&) {
        loaded_ = false;
    }
    if (!loaded_) {
        fl::detail::throw_exception(MessageCatalogLoadFailed(catalog_name_));
    }
}

ustring MessageCatalogImpl::get_message_text(std::string const& key) const {
    if (!loaded_) {
        fl::detail::throw_exception(MessageCatalogLoadFailed(catalog_name_));
    }
    icu::UnicodeString const* const text = store_->find(key);
    if (text == nullptr) {
        fl::detail::throw_exception(MessageNotFound(catalog_name_, key));
    }
    return ustring(text->getBuffer(), static_cast<std::size_t>(text->length()));
}

std::vector<std::string> MessageCatalogImpl::get_message_keys() const {
    return store_->keys();
}

ustring MessageCatalogImpl::format_message(resource_core::BaseMsgID const& id) const {
    if (id.getCatalogName() != catalog_name_) {
        fl::detail::throw_exception(MessageNotFound(catalog_name_, id.getKey()));
    }
    return catalog::format_text(get_message_text(id.getKey()), id.getArgs(), false);
}

}  // namespace i18n
}  // namespace fl
