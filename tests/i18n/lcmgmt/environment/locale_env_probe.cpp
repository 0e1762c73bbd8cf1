// One start-up per process, checked against what the scenario expects. Each CTest registration
// runs it with its own locale variables and EXPECT_* variables:
//   EXPECT_STATUS, EXPECT_WARNING (substring), EXPECT_ENCODING, EXPECT_SYSTEM_<CATEGORY> and
//   EXPECT_GLOBAL_<CATEGORY> ("name" or "name@modifier"), EXPECT_L10N_ENABLED (0/1),
//   EXPECT_ENV ("VAR=value,VAR=" where an empty value means unset), EXPECT_LC_SET (the only
//   LC_ variables left set), EXPECT_INFO (getLocaleInformation "Key=value,..."),
//   EXPECT_ORIGINAL_ENV (get_original_user_locale_setting "VAR=value,...").
// PROBE_CHANGE_TO_ENGLISH=1 calls change_global_locale with an en_US locale after start-up.
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using fl::i18n::OvLocale;

bool expected(char const* name, std::string& value) {
    char const* found = std::getenv(name);
    if (found == nullptr) {
        return false;
    }
    value = found;
    return true;
}

std::vector<std::pair<std::string, std::string>> pairs(std::string const& list) {
    std::vector<std::pair<std::string, std::string>> result;
    std::stringstream in(list);
    std::string item;
    while (std::getline(in, item, ',')) {
        std::size_t const eq = item.find('=');
        result.emplace_back(item.substr(0, eq),
                            eq == std::string::npos ? std::string() : item.substr(eq + 1));
    }
    return result;
}

std::string env_or_empty(std::string const& name) {
    char const* value = std::getenv(name.c_str());
    return value == nullptr ? std::string() : value;
}

std::string name_with_modifier(OvLocale const& locale, OvLocale::LcCategory category) {
    return locale.getLocaleName(category) + locale.getModifier(category);
}

class LocaleEnvironment : public testing::Test {
protected:
    static void SetUpTestSuite() {
        fl::i18n::initialize();
        if (std::getenv("PROBE_CHANGE_TO_ENGLISH") != nullptr) {
            fl::i18n::change_global_locale(*OvLocale::createLocale("en_US"));
        }
    }
};

TEST_F(LocaleEnvironment, StatusAndEncoding) {
    std::string value;
    if (expected("EXPECT_STATUS", value)) {
        EXPECT_EQ(fl::i18n::OvLcUtil::getLcStatus(), std::stoi(value));
    }
    if (expected("EXPECT_WARNING", value)) {
        EXPECT_NE(fl::i18n::OvLcUtil::getInitWarningMsg().find(value), std::string::npos)
            << fl::i18n::OvLcUtil::getInitWarningMsg();
    }
    if (expected("EXPECT_ENCODING", value)) {
        EXPECT_EQ(OvLocale::system().getEncoding(), value);
        EXPECT_EQ(OvLocale::global().getEncoding(), value);
    }
    if (expected("EXPECT_L10N_ENABLED", value)) {
        EXPECT_EQ(fl::i18n::get_l10n_resource_status(), value == "1");
    }
}

TEST_F(LocaleEnvironment, Categories) {
    for (int c = OvLocale::ctype; c <= OvLocale::messages; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        std::string upper = OvLocale::getLcCategoryName(category);
        for (char& ch : upper) {
            ch = char(ch - 'a' + 'A');
        }
        std::string value;
        if (expected(("EXPECT_SYSTEM_" + upper).c_str(), value)) {
            EXPECT_EQ(name_with_modifier(OvLocale::system(), category), value) << upper;
        }
        if (expected(("EXPECT_GLOBAL_" + upper).c_str(), value)) {
            EXPECT_EQ(name_with_modifier(OvLocale::global(), category), value) << upper;
        }
    }
    // The library's own numbers never follow the user.
    EXPECT_EQ(OvLocale::global().getLocaleName(OvLocale::numeric), "en_US_POSIX");
}

TEST_F(LocaleEnvironment, RewrittenEnvironment) {
    std::string value;
    if (expected("EXPECT_ENV", value)) {
        for (auto const& var : pairs(value)) {
            EXPECT_EQ(env_or_empty(var.first), var.second) << var.first;
        }
    }
    if (expected("EXPECT_LC_SET", value)) {
        std::map<std::string, bool> allowed;
        for (auto const& var : pairs(value)) {
            allowed[var.first] = true;
        }
        for (char const* name : {"LC_CTYPE", "LC_COLLATE", "LC_TIME", "LC_NUMERIC", "LC_MONETARY",
                                 "LC_MESSAGES", "LC_PAPER", "LC_NAME", "LC_ADDRESS", "LC_TELEPHONE",
                                 "LC_MEASUREMENT", "LC_IDENTIFICATION", "LC_ALL"}) {
            EXPECT_EQ(std::getenv(name) != nullptr, allowed.count(name) != 0) << name;
        }
    }
    // What start-up installed is what the standard library can build.
    EXPECT_TRUE(fl::i18n::lcmgmt::is_std_locale_valid());
}

TEST_F(LocaleEnvironment, ReportsTheSettingAsFound) {
    std::string value;
    if (expected("EXPECT_INFO", value)) {
        auto const info = fl::i18n::OvLcUtil::getLocaleInformation();
        for (auto const& item : pairs(value)) {
            auto const found = info.find(item.first);
            ASSERT_NE(found, info.end()) << item.first;
            EXPECT_EQ(found->second, item.second) << item.first;
        }
    }
    if (expected("EXPECT_ORIGINAL_ENV", value)) {
        auto const original = fl::i18n::lcmgmt::get_original_user_locale_setting();
        for (auto const& item : pairs(value)) {
            bool seen = false;
            for (auto const& var : original.env_vars) {
                if (var.name == item.first) {
                    seen = true;
                    EXPECT_EQ(var.value, item.second) << item.first;
                }
            }
            EXPECT_TRUE(seen) << item.first;
        }
    }
}

}  // namespace
