#include "i18n/catalog/catalog_cache.hpp"

namespace fl {
namespace i18n {
namespace catalog {

catalog_cache::table const& catalog_cache::current() const {
    // One cache exists per process, so one slot per thread serves. A thread that stops calling
    // keeps its last table, and the catalogs in it, alive until it calls again or ends.
    thread_local boost::shared_ptr<snapshot const> mine;
    if (!mine || mine->version != version_.load(std::memory_order_acquire)) {
        std::lock_guard<std::mutex> const lock(publish_mutex_);
        mine = current_;
    }
    return mine->entries;
}

std::uint64_t catalog_cache::flush_count() const {
    std::lock_guard<std::mutex> const lock(publish_mutex_);
    return flushes_;
}

void catalog_cache::insert(std::vector<std::string> const& keys,
                           boost::shared_ptr<MessageCatalog const> const& catalog,
                           std::uint64_t flushes_seen) {
    replace(
        [&](table& entries) {
            for (std::string const& key : keys) {
                entries[key].catalog = catalog;
            }
        },
        [&] { return flushes_ == flushes_seen; }, false);
}

void catalog_cache::erase_catalog(std::string const& catalog_id) {
    replace(
        [&](table& entries) {
            for (auto it = entries.begin(); it != entries.end();) {
                std::string::size_type const colon = it->first.rfind(':');
                if (colon != std::string::npos && it->first.compare(0, colon, catalog_id) == 0) {
                    it = entries.erase(it);
                } else {
                    ++it;
                }
            }
        },
        [] { return true; }, true);
}

// The copy is made outside the lock, so that threads picking up the newest table wait only for
// a pointer swap; a change that lost the race to another one starts again from the newer table.
template <class Edit, class Admit>
void catalog_cache::replace(Edit edit, Admit admit, bool counts_as_flush) {
    for (;;) {
        boost::shared_ptr<snapshot const> base;
        {
            std::lock_guard<std::mutex> const lock(publish_mutex_);
            if (!admit()) {
                return;
            }
            base = current_;
        }
        boost::shared_ptr<snapshot> next(new snapshot(*base));
        edit(next->entries);
        std::lock_guard<std::mutex> const lock(publish_mutex_);
        if (current_ != base) {
            continue;
        }
        if (!admit()) {
            return;
        }
        flushes_ += counts_as_flush ? 1 : 0;
        next->version = version_.load(std::memory_order_relaxed) + 1;
        current_ = next;
        version_.store(next->version, std::memory_order_release);
        return;
    }
}

}  // namespace catalog
}  // namespace i18n
}  // namespace fl
