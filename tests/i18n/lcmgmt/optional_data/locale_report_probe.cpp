// Reports that depend on start-up, checked once per process. PROBE_START=1 runs start-up and
// PROBE_DISABLE_L10N=1 then disables translated resources. EXPECT_JVM holds the seven fields of
// the JVM context, EXPECT_INFO "Key=value" items of the locale information, both ","-separated.
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> split(char const* list) {
    std::vector<std::string> items;
    std::stringstream in(list != nullptr ? list : "");
    for (std::string item; std::getline(in, item, ',');) {
        items.push_back(item);
    }
    return items;
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

TEST_F(LocaleReport, InformationHasEveryFixedKey) {
    auto const info = fl::i18n::OvLcUtil::getLocaleInformation();
    std::vector<std::string> keys = {"XpgEnvLcAll", "XpgEnvLang", "XpgEncoding"};
    for (char const* prefix : {"InitialXpgLc", "XpgLc", "XpgEnvLc"}) {
        for (char const* word :
             {"Ctype", "Collate", "Time", "Numeric", "Monetary", "Messages", "Paper", "Name",
              "Address", "Telephone", "Measurement", "Identification"}) {
            keys.push_back(std::string(prefix) + word);
        }
    }
    EXPECT_EQ(info.size(), keys.size());
    for (std::string const& key : keys) {
        auto const found = info.find(key);
        ASSERT_NE(found, info.end()) << key;
        if (std::getenv("PROBE_START") == nullptr) {
            EXPECT_EQ(found->second, "") << key << " before start-up";
        }
    }
    for (std::string const& item : split(std::getenv("EXPECT_INFO"))) {
        std::size_t const eq = item.find('=');
        EXPECT_EQ(info.at(item.substr(0, eq)), item.substr(eq + 1)) << item;
    }
}

TEST_F(LocaleReport, JavaVmContext) {
    std::vector<std::string> expected = split(std::getenv("EXPECT_JVM"));
    expected.resize(7);
    fl::i18n::javavm_init_context const c = fl::i18n::get_javavm_init_context();
    std::vector<std::string> const actual = {
        c.language,        c.region,        c.resource_language, c.resource_region,
        c.format_language, c.format_region, c.file_encoding};
    EXPECT_EQ(actual, expected);
}

}  // namespace
