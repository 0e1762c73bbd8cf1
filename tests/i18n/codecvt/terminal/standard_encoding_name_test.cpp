#include <fl/i18n/codecvt/standard_encoding_name.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

struct name_case {
    char const* given;
    char const* expected;
};

// Each row pins one step of the lookup: the database first, then ICU's standards in the order
// MIME, IANA, WINDOWS, then ICU's own name, then the database again on ICU's answer.
name_case const name_cases[] = {
    {"UTF-8", "UTF-8"},                    // database, exact
    {"utf-8", "UTF-8"},                    // database keys ignore case
    {"MS950", "Big5"},                     // database alias
    {"eucjp", "EUC-JP"},                   // database alias
    {"latin1", "ISO-8859-1"},              // ICU alias, MIME name
    {"x-mac-cyrillic", "x-mac-cyrillic"},  // MIME preferred to the WINDOWS name
    {"cp850", "IBM850"},                   // MIME, ahead of WINDOWS
    {"cp437", "IBM437"},                   // no MIME name: IANA
    {"cp737", "windows-737"},              // known only under WINDOWS
    {"ibm-1363", "ibm-1363_P110-1997"},    // no standard at all: ICU's own name
    {"ibm-949", "CP949"},                  // ICU's own name is a database alias
    {"ibm-1131", "CP1131"},                // likewise
    {"no-such-encoding", ""},              // unknown everywhere
    {"", ""},                              // nothing asked
};

TEST(StandardEncodingName, ResolvesThroughDatabaseAndIcu) {
    for (name_case const& c : name_cases) {
        EXPECT_EQ(fl::i18n::get_standard_encoding_name(c.given), c.expected) << c.given;
    }
}

}  // namespace
