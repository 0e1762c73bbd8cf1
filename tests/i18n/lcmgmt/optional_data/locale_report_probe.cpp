// Reports that depend on start-up, checked once per process. PROBE_START=1 runs start-up,
// PROBE_DISABLE_L10N=1 then disables translated resources. EXPECT_JVM holds the seven fields of
// the JVM context separated by ","; EXPECT_INFO holds "Key=value,..." items of the locale
// information.
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using info_map = std::map<std::string, std::string>;

std::vector<std::string> split(std::string const& list) {
    std::vector<std::string> items;
    std::stringstream in(list);
    std::string item;
    while (std::getline(in, item, ',')) {
        items.push_back(item);
    }
    if (!list.empty() && list.back() == ',') {
        items.emplace_back();
    }
    return items;
}

// The keys that are always present, in the order the report builds them.
std::vector<std::string> fixed_keys() {
    static char const* const words[] = {"Ctype",    "Collate",   "Time",        "Numeric",
                                        "Monetary", "Messages",  "Paper",       "Name",
                                        "Address",  "Telephone", "Measurement", "Identification"};
    std::vector<std::string> keys;
    for (char const* prefix : {"InitialXpgLc", "XpgLc", "XpgEnvLc"}) {
        for (char const* word : words) {
            keys.push_back(std::string(prefix) + word);
        }
    }
    keys.push_back("XpgEnvLcAll");
    keys.push_back("XpgEnvLang");
    keys.push_back("XpgEncoding");
    return keys;
}

class LocaleReport : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (std::getenv("PROBE_START") != nullptr) {
            fl::i18n::initialize();
        }
        if (std::getenv("PROBE_DISABLE_L10N") != nullptr) {
            fl::i18n::disable_l10n_resource();
        }
    }
};

TEST_F(LocaleReport, InformationHasEveryFixedKeyAndNumberedEvents) {
    info_map const info = fl::i18n::OvLcUtil::getLocaleInformation();
    std::vector<std::string> const keys = fixed_keys();
    ASSERT_EQ(keys.size(), 39u);
    for (std::string const& key : keys) {
        EXPECT_EQ(info.count(key), 1u) << key;
    }
    std::size_t events = 0;
    while (info.count("ErrorEvent" + std::to_string(events + 1)) != 0) {
        ++events;
    }
    EXPECT_EQ(info.size(), keys.size() + events)
        << "keys other than the fixed ones and ErrorEvent1..n";

    if (std::getenv("PROBE_START") == nullptr) {
        for (auto const& entry : info) {
            EXPECT_EQ(entry.second, "") << entry.first << " before start-up";
        }
    }
    char const* expected = std::getenv("EXPECT_INFO");
    for (std::string const& item : split(expected != nullptr ? expected : "")) {
        std::size_t const eq = item.find('=');
        auto const found = info.find(item.substr(0, eq));
        ASSERT_NE(found, info.end()) << item;
        EXPECT_EQ(found->second, item.substr(eq + 1)) << item;
    }
}

TEST_F(LocaleReport, JavaVmContext) {
    char const* expected = std::getenv("EXPECT_JVM");
    if (expected == nullptr) {
        GTEST_SKIP() << "no JVM expectation in this scenario";
    }
    std::vector<std::string> const fields = split(expected);
    ASSERT_EQ(fields.size(), 7u) << expected;
    fl::i18n::javavm_init_context const context = fl::i18n::get_javavm_init_context();
    std::string const actual[] = {context.language,          context.region,
                                  context.resource_language, context.resource_region,
                                  context.format_language,   context.format_region,
                                  context.file_encoding};
    static char const* const names[] = {"language",        "region",          "resource_language",
                                        "resource_region", "format_language", "format_region",
                                        "file_encoding"};
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(actual[i], fields[i]) << names[i];
    }
}

}  // namespace
