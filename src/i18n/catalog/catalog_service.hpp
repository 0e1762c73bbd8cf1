#ifndef FL_I18N_CATALOG_CATALOG_SERVICE_HPP
#define FL_I18N_CATALOG_CATALOG_SERVICE_HPP

#include <fl/filesystem/basic_path.hpp>

#include "i18n/catalog/catalog_cache.hpp"

#include <boost/thread/mutex.hpp>

#include <mutex>
#include <utility>
#include <vector>

namespace fl {
namespace i18n {
namespace catalog {

// A resources directory, and whether it was added after init (true) or given to init (false).
using resource_root_list = std::vector<std::pair<fl::filesystem::upath, bool>>;

// The process-wide state of the message service, created on first use and never destroyed.
struct catalog_service {
    // Serialises loads (a file is parsed by one thread at a time) and every change of roots.
    // Not recursive, and never taken by a cache hit or by a flush.
    boost::mutex load_mutex;
    // Changed only with load_mutex held too, so a holder of load_mutex reads it freely; other
    // readers take roots_mutex, which is never held for longer than a copy.
    resource_root_list roots;
    mutable std::mutex roots_mutex;
    catalog_cache cache;

    void set_roots(resource_root_list next) {
        std::lock_guard<std::mutex> const lock(roots_mutex);
        roots.swap(next);
    }
};

catalog_service& service();

}  // namespace catalog
}  // namespace i18n
}  // namespace fl

#endif
