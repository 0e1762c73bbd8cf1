#ifndef FL_I18N_CATALOG_CATALOG_CACHE_HPP
#define FL_I18N_CATALOG_CATALOG_CACHE_HPP

#include <fl/i18n/catalog/message_catalog.hpp>

#include <boost/shared_ptr.hpp>
#include <boost/unordered_map.hpp>

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace catalog {

struct CatalogCacheEntry {
    boost::shared_ptr<MessageCatalog const> catalog;
};

// The loaded catalogs by "catalog id:locale". The table is never changed in place: every change
// builds a new table and publishes it whole, and each thread reads the last table it picked up.
// A hit thus takes no lock and writes no shared memory (one atomic load tells a thread whether
// its table is still the newest), so hits neither queue behind a load nor behind each other.
class catalog_cache {
public:
    // std::hash takes a word at a time where boost's default hash mixes in every character; on
    // a hit the key's hash is most of the lookup.
    using table = boost::unordered_map<std::string, CatalogCacheEntry, std::hash<std::string>>;

    // The newest table, as this thread holds it. The reference, and the catalogs in it, stay
    // valid until the same thread calls current() again.
    table const& current() const;

    // What has been flushed so far; a load notes it before it reads its file.
    std::uint64_t flush_count() const;
    // Stores catalog under every key, unless a flush came after flushes_seen: the file may then
    // have been read before the flush, so the catalog is handed out but not kept.
    void insert(std::vector<std::string> const& keys,
                boost::shared_ptr<MessageCatalog const> const& catalog, std::uint64_t flushes_seen);
    // Drops every key whose text before its last colon is catalog_id.
    void erase_catalog(std::string const& catalog_id);

private:
    struct snapshot {
        table entries;
        std::uint64_t version = 0;
    };
    // Publishes a copy of the newest table changed by edit, if admit() still holds (asked
    // under the lock).
    template <class Edit, class Admit>
    void replace(Edit edit, Admit admit, bool counts_as_flush);

    // Guards current_ and flushes_: held only to swap a table in or to pick one up.
    mutable std::mutex publish_mutex_;
    boost::shared_ptr<snapshot const> current_ = boost::shared_ptr<snapshot const>(new snapshot);
    std::atomic<std::uint64_t> version_{0};
    std::uint64_t flushes_ = 0;
};

}  // namespace catalog
}  // namespace i18n
}  // namespace fl

#endif
