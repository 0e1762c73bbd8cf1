#include "i18n/catalog/expat_file_parser.hpp"
#include "i18n/catalog/message_catalog_expat_event_handler.hpp"
#include "i18n/catalog/xml_catalog_data_store.hpp"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

// Catalog files come from every installed product and from additional resource locations: any
// bytes must either load or be refused, and what loads must be found again by its keys.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fl::i18n::XMLCatalogDataStore store;
    std::istringstream input(std::string(reinterpret_cast<char const*>(data), size));
    fl::i18n::ExpatFileParser parser(
        fl::filesystem::upath(),
        boost::make_shared<fl::i18n::MessageCatalogExpatEventHandler>(&store));
    if (!parser.parse(input)) {
        return 0;
    }
    for (std::string const& key : store.keys()) {
        if (key.empty() || store.find(key) == nullptr) {
            std::abort();
        }
    }
    return 0;
}
