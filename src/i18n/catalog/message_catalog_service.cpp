// The front door of message lookup: catalogs by id and locale, loaded once and then served from
// the cache.

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/catalog/resource_finder.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"
#include "i18n/catalog/catalog_map.hpp"
#include "i18n/catalog/catalog_service.hpp"
#include "i18n/catalog/format_text.hpp"
#include "i18n/catalog/message_catalog_impl.hpp"

#include <boost/thread/locks.hpp>

namespace fl {
namespace i18n {

namespace {

using catalog_ptr = boost::shared_ptr<MessageCatalog const>;

// "catalog id:locale", built in a buffer of the calling thread so that a hit allocates nothing
// for it. Valid until the thread's next call.
std::string const& cache_key(std::string const& catalog_id, std::string const& locale) {
    thread_local std::string key;
    key.assign(catalog_id);
    key += ':';
    key += locale;
    return key;
}

// The cached catalog, valid until this thread's next look into the cache; null on a miss.
// Only ids that passed their syntax check are ever stored, and a locale name holds no colon, so
// a key splits one way only: a text that finds an entry is the valid id it was stored under.
MessageCatalog const* cached(std::string const& catalog_id, std::string const& locale) {
    catalog::catalog_cache::table const& table = catalog::service().cache.current();
    auto const it = table.find(cache_key(catalog_id, locale));
    return it == table.end() ? nullptr : it->second.catalog.get();
}

catalog_ptr cached_ptr(std::string const& key) {
    catalog::catalog_cache::table const& table = catalog::service().cache.current();
    auto const it = table.find(key);
    return it == table.end() ? catalog_ptr() : it->second.catalog;
}

// Loads the catalog of id for the locale whose messages name is locale_name, with the load
// mutex held throughout: a file is parsed by one thread at a time.
catalog_ptr load(std::string const& id, OvLocale const& locale, std::string const& locale_name) {
    catalog::catalog_service& service = catalog::service();
    std::string const key = id + ':' + locale_name;
    boost::unique_lock<boost::mutex> const lock(service.load_mutex);
    // Another thread may have loaded it while this one waited; one file gives one object.
    if (catalog_ptr const loaded = cached_ptr(key)) {
        return loaded;
    }
    if (service.roots.empty()) {
        fl::detail::throw_exception(MessageCatalog::MessageCatalogNotInitialized());
    }
    std::uint64_t const flushes = service.cache.flush_count();
    std::vector<fl::filesystem::upath> paths;
    paths.reserve(service.roots.size());
    for (auto const& root : service.roots) {
        paths.push_back(root.first);
    }
    resource_finder const finder(paths, locale, true, ustring());
    fl::filesystem::upath const file = finder.find(catalog_file_pattern(id));
    std::string const found = finder.get_locale();
    if (file.empty() || found.empty()) {
        fl::detail::throw_exception(MessageCatalog::MessageCatalogLoadFailed(id));
    }
    std::vector<std::string> keys{key};
    if (found != locale_name) {
        keys.push_back(id + ':' + found);
        // The fallback's file may be loaded already for another locale: share that object.
        if (catalog_ptr const loaded = cached_ptr(keys.back())) {
            service.cache.insert({key}, loaded, flushes);
            return loaded;
        }
    }
    catalog_ptr const loaded(new MessageCatalogImpl(id, file, found));
    service.cache.insert(keys, loaded, flushes);
    return loaded;
}

ustring message_text(std::string const& catalog_id, std::string const& key,
                     OvLocale const& locale) {
    std::string const locale_name = locale.getLocaleName(OvLocale::messages);
    if (MessageCatalog const* const catalog = cached(catalog_id, locale_name)) {
        return catalog->get_message_text(key);
    }
    // The id is checked here, on the way to a load.
    return load(CatalogID(catalog_id).getCatalogID(), locale, locale_name)->get_message_text(key);
}

}  // namespace

catalog_ptr MessageCatalog::GetMessageCatalog(CatalogID const& id, OvLocale const& locale) {
    std::string const locale_name = locale.getLocaleName(OvLocale::messages);
    std::string const catalog_id = id.getCatalogID();
    if (catalog_ptr const hit = cached_ptr(cache_key(catalog_id, locale_name))) {
        return hit;
    }
    return load(catalog_id, locale, locale_name);
}

catalog_ptr MessageCatalog::openCatalog(resource_core::BaseCatalogID const& id,
                                        OvLocale const& locale) {
    return GetMessageCatalog(CatalogID(id.getCatalogName()), locale);
}

// Takes no lock of its own beyond the cache's brief publication lock, and never the load mutex:
// remove_additional_resource_location calls it with that mutex held, and it is not recursive.
// Readers are safe all the same, since the cache never changes a table in place; a thread that
// is reading keeps the table it has, and picks up the table without id on its next look.
void MessageCatalog::FlushCatalogFromCache(CatalogID const& id) {
    catalog::service().cache.erase_catalog(id.getCatalogID());
}

ustring MessageCatalog::get_message(MessageID const& id, OvLocale const& locale) {
    return message_text(id.getCatalogID(), id.getMsgKey(), locale);
}

ustring MessageCatalog::get_message(resource_core::BaseMsgID const& id, OvLocale const& locale) {
    return catalog::format_text(message_text(id.getCatalogName(), id.getKey(), locale),
                                id.getArgs(), false);
}

ustring MessageCatalog::get_default_locale_message(resource_core::BaseMsgID const& id) {
    return get_message(id, OvLocale::classic());
}

}  // namespace i18n
}  // namespace fl
