#include "i18n/catalog/expat_file_parser.hpp"
#include "i18n/catalog/message_catalog_expat_event_handler.hpp"
#include "i18n/catalog/message_catalog_file_loader.hpp"

#include <boost/make_shared.hpp>

namespace fl {
namespace i18n {

bool XMLCatalogFileLoader::load(fl::filesystem::upath const& file, MessageCatalogDataStore* store) {
    ExpatFileParser parser(file, boost::make_shared<MessageCatalogExpatEventHandler>(store));
    return parser.parse();
}

}  // namespace i18n
}  // namespace fl
