#ifndef OVI18N_TESTS_LCDATA_TEST_SUPPORT_HPP
#define OVI18N_TESTS_LCDATA_TEST_SUPPORT_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "i18n/lcmgmt/lcdata_parser.hpp"

#include <sstream>
#include <string>
#include <vector>

// Parses an in-memory document into a fresh database.
struct parsed_document {
    fl::i18n::lcmgmt::Lcdb database;
    std::vector<std::string> warnings;

    void parse(std::string const& text) {
        std::istringstream input(text);
        fl::i18n::lcmgmt::parseLcData(database, input, "memory.xml", warnings);
    }
};

#endif
