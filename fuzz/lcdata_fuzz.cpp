#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>
#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "i18n/lcmgmt/startup/lcdata_parser.hpp"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

// The database file is the installation's, but anyone may point OVLOCALE_LCDATA_PATH at any
// file: any bytes must be applied or refused as an invalid document, and the database must
// still answer afterwards.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    // A fresh database per input, so that a failure reproduces from its input alone.
    fl::i18n::lcmgmt::Lcdb database;
    std::istringstream input(std::string(reinterpret_cast<char const*>(data), size));
    std::vector<std::string> warnings;
    try {
        fl::i18n::lcmgmt::parseLcData(database, input, "fuzz.xml", warnings);
    } catch (fl::i18n::LcRscInvalidXmlDoc const&) {
    }
    database.canonical_locale_name("de_DE");
    database.standard_encoding_name("UTF-8");
    return 0;
}
