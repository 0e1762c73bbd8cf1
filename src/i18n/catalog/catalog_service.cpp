#include "i18n/catalog/catalog_service.hpp"

#include <boost/thread/once.hpp>

namespace fl {
namespace i18n {
namespace catalog {

catalog_service& service() {
    static boost::once_flag once = BOOST_ONCE_INIT;
    static catalog_service* instance = nullptr;
    boost::call_once(once, [] { instance = new catalog_service; });
    return *instance;
}

}  // namespace catalog
}  // namespace i18n
}  // namespace fl
