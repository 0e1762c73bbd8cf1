// One start-up per process, checked against what the scenario expects. Each CTest registration
// runs it with its own locale variables and EXPECT_* variables, each optional:
//   EXPECT_STATUS, EXPECT_WARNING (substring of getInitWarningMsg), EXPECT_WARNINGS (the start-up
//   warnings joined by "|"), EXPECT_DATABASE_FILE, EXPECT_ALIAS ("name=canonical", canonical
//   empty when the name must be unknown), EXPECT_ENCODING (system and global locale),
//   EXPECT_SYSTEM_<CATEGORY> and EXPECT_GLOBAL_<CATEGORY> ("name" or "name@modifier"),
//   EXPECT_L10N_ENABLED (0/1), EXPECT_ENV ("VAR=value,VAR=", an empty value means unset),
//   EXPECT_LC_SET (the only LC_ variables left set), EXPECT_C_CTYPE (the C library's LC_CTYPE),
//   EXPECT_ICU_LOCALE, EXPECT_INFO ("Key=value,..." of getLocaleInformation), EXPECT_ORIGINAL_ENV
//   ("VAR=value,..." of get_original_user_locale_setting), EXPECT_JVM (the seven fields of the
//   JVM context, ","-separated), EXPECT_INITIALIZE_THROWS (1: initialize() throws
//   InvalidArgument), EXPECT_STATUS_MESSAGE, EXPECT_CREATED_ENCODING ("name=encoding,..." of
//   createLocale).
// PROBE_NO_START=1 skips start-up, and the probe then checks the default setting. PROBE_STEPS
// ("change=NAME,disable,lock") then calls change_global_locale with createLocale(NAME),
// disable_l10n_resource or lock_global_locale_setting, in order.
#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <unicode/locid.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using fl::i18n::OvLcUtil;
using fl::i18n::OvLocale;

// The value of an environment variable, if it is set.
std::optional<std::string> env(std::string const& name) {
    char const* value = std::getenv(name.c_str());
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

std::vector<std::string> split(std::string const& list) {
    std::vector<std::string> items;
    std::stringstream in(list);
    for (std::string item; std::getline(in, item, ',');) {
        items.push_back(item);
    }
    return items;
}

std::vector<std::pair<std::string, std::string>> pairs(std::string const& list) {
    std::vector<std::pair<std::string, std::string>> result;
    for (std::string const& item : split(list)) {
        std::size_t const eq = item.find('=');
        result.emplace_back(item.substr(0, eq),
                            eq == std::string::npos ? std::string() : item.substr(eq + 1));
    }
    return result;
}

bool started() {
    return !env("PROBE_NO_START") && !env("EXPECT_INITIALIZE_THROWS");
}

class Startup : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (env("EXPECT_INITIALIZE_THROWS")) {
            EXPECT_THROW(fl::i18n::initialize(), fl::filesystem::InvalidArgument);
        } else if (started()) {
            fl::i18n::initialize();
        }
        for (std::string const& step : split(env("PROBE_STEPS").value_or(""))) {
            // Once resources are off, nothing moves the global locale again.
            bool const off = !fl::i18n::get_l10n_resource_status();
            OvLocale const* const before = &OvLocale::global();
            if (step == "disable") {
                fl::i18n::disable_l10n_resource();
            } else if (step == "lock") {
                fl::i18n::lock_global_locale_setting();
            } else {
                fl::i18n::change_global_locale(*OvLocale::createLocale(step.substr(7)));
            }
            if (off) {
                EXPECT_EQ(&OvLocale::global(), before) << step;
            }
        }
    }
};

TEST_F(Startup, StatusAndDatabase) {
    if (auto const value = env("EXPECT_STATUS")) {
        EXPECT_EQ(OvLcUtil::getLcStatus(), std::stoi(*value));
    }
    if (auto const value = env("EXPECT_STATUS_MESSAGE")) {
        EXPECT_EQ(OvLcUtil::getInitStatusMsg(), *value);
    }
    if (auto const value = env("EXPECT_WARNING")) {
        EXPECT_NE(OvLcUtil::getInitWarningMsg().find(*value), std::string::npos)
            << OvLcUtil::getInitWarningMsg();
    }
    if (auto const value = env("EXPECT_WARNINGS")) {
        std::string warnings;
        for (std::string const& w : fl::i18n::get_startup_warnings()) {
            warnings += (warnings.empty() ? "" : "|") + w;
        }
        EXPECT_EQ(warnings, *value);
    }
    if (auto const value = env("EXPECT_DATABASE_FILE")) {
        EXPECT_EQ(fl::i18n::get_locale_database_file(), *value);
    }
    if (auto const value = env("EXPECT_ALIAS")) {
        auto const alias = pairs(*value).at(0);
        if (alias.second.empty()) {
            EXPECT_THROW(OvLocale::createLocale(alias.first), fl::i18n::OvLcInvLcName);
        } else {
            EXPECT_EQ(OvLocale::createLocale(alias.first)->getLocaleName(OvLocale::ctype),
                      alias.second);
        }
    }
    if (auto const value = env("EXPECT_CREATED_ENCODING")) {
        for (auto const& item : pairs(*value)) {
            EXPECT_EQ(OvLocale::createLocale(item.first)->getEncoding(), item.second) << item.first;
        }
    }
    if (auto const value = env("EXPECT_L10N_ENABLED")) {
        EXPECT_EQ(fl::i18n::get_l10n_resource_status(), *value == "1");
    }
}

TEST_F(Startup, Locales) {
    if (auto const value = env("EXPECT_ENCODING")) {
        EXPECT_EQ(OvLocale::system().getEncoding(), *value);
        EXPECT_EQ(OvLocale::global().getEncoding(), *value);
    }
    for (int c = OvLocale::ctype; c <= OvLocale::messages; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        std::string upper = OvLocale::getLcCategoryName(category);
        for (char& ch : upper) {
            ch = char(ch - 'a' + 'A');
        }
        for (auto const& which : {std::make_pair("SYSTEM_", &OvLocale::system()),
                                  std::make_pair("GLOBAL_", &OvLocale::global())}) {
            if (auto const value = env("EXPECT_" + std::string(which.first) + upper)) {
                EXPECT_EQ(
                    which.second->getLocaleName(category) + which.second->getModifier(category),
                    *value)
                    << which.first << upper;
            }
        }
    }
    // The library's own numbers never follow the user.
    EXPECT_EQ(OvLocale::global().getLocaleName(OvLocale::numeric), "en_US_POSIX");
    if (auto const value = env("EXPECT_ICU_LOCALE")) {
        EXPECT_STREQ(icu::Locale::getDefault().getName(), value->c_str());
    }
}

TEST_F(Startup, WhatTheEnvironmentAndTheCLibraryWereTold) {
    if (auto const value = env("EXPECT_ENV")) {
        for (auto const& var : pairs(*value)) {
            EXPECT_EQ(env(var.first).value_or(""), var.second) << var.first;
        }
    }
    if (auto const value = env("EXPECT_LC_SET")) {
        std::set<std::string> allowed;
        for (auto const& var : pairs(*value)) {
            allowed.insert(var.first);
        }
        for (char const* name : {"LC_CTYPE", "LC_COLLATE", "LC_TIME", "LC_NUMERIC", "LC_MONETARY",
                                 "LC_MESSAGES", "LC_PAPER", "LC_NAME", "LC_ADDRESS", "LC_TELEPHONE",
                                 "LC_MEASUREMENT", "LC_IDENTIFICATION", "LC_ALL"}) {
            EXPECT_EQ(env(name).has_value(), allowed.count(name) != 0) << name;
        }
    }
    if (auto const value = env("EXPECT_C_CTYPE")) {
        EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), value->c_str());
    }
}

// Numbers in UTF-16 streams use the classic punctuation whatever the process locale, and what
// start-up installed is what the standard library can build.
TEST_F(Startup, StandardLibraryLocaleIsInstalled) {
    if (!started()) {
        GTEST_SKIP() << "no start-up ran to install it";
    }
    EXPECT_TRUE(fl::i18n::lcmgmt::is_std_locale_valid());
    std::basic_ostringstream<char16_t> out;
    out.imbue(fl::i18n::facet::get_global_std_locale());
    out << 1234567 << u' ' << 0.5;
    EXPECT_TRUE(out.str() == u"1234567 0.5");
}

TEST_F(Startup, ReportsTheSettingAsFound) {
    // Three per-category families of twelve plus the three whole-process keys; scenarios name the
    // keys that tell which value start-up took.
    auto const info = OvLcUtil::getLocaleInformation();
    EXPECT_EQ(info.size(), 39u);
    for (auto const& item : info) {
        if (env("PROBE_NO_START")) {
            EXPECT_EQ(item.second, "") << item.first << " before start-up";
        }
    }
    if (auto const value = env("EXPECT_INFO")) {
        for (auto const& item : pairs(*value)) {
            EXPECT_EQ(info.at(item.first), item.second) << item.first;
        }
    }
    if (auto const value = env("EXPECT_ORIGINAL_ENV")) {
        auto const original = fl::i18n::lcmgmt::get_original_user_locale_setting();
        for (auto const& item : pairs(*value)) {
            std::vector<std::string> seen;
            for (auto const& var : original.env_vars) {
                if (var.name == item.first) {
                    seen.push_back(var.value);
                }
            }
            EXPECT_EQ(seen, std::vector<std::string>{item.second}) << item.first;
        }
    }
    if (auto const value = env("EXPECT_JVM")) {
        std::vector<std::string> fields = split(*value);
        fields.resize(7);
        fl::i18n::javavm_init_context const c = fl::i18n::get_javavm_init_context();
        EXPECT_EQ(
            (std::vector<std::string>{c.language, c.region, c.resource_language, c.resource_region,
                                      c.format_language, c.format_region, c.file_encoding}),
            fields);
    }
}

// A second start, whoever asks, changes nothing: start-up would remove LC_ALL again.
TEST_F(Startup, SecondStartChangesNothing) {
    if (!started()) {
        GTEST_SKIP() << "no first start-up";
    }
    auto const status = std::make_tuple(OvLcUtil::getLcStatus(), OvLcUtil::getInitStatusMsg(),
                                        OvLcUtil::getInitWarningMsg(), &OvLocale::global(),
                                        &OvLocale::system(), fl::i18n::get_startup_warnings());
    ASSERT_EQ(setenv("LC_ALL", "C", 1), 0);
    fl::i18n::initialize();
    fl::i18n::initLcMgmtSystem();
    EXPECT_STREQ(std::getenv("LC_ALL"), "C");
    EXPECT_TRUE(status == std::make_tuple(OvLcUtil::getLcStatus(), OvLcUtil::getInitStatusMsg(),
                                          OvLcUtil::getInitWarningMsg(), &OvLocale::global(),
                                          &OvLocale::system(), fl::i18n::get_startup_warnings()));
    unsetenv("LC_ALL");
}

// Runs last, after every reader above: none of them may start the manager. The system locale is
// an object of its own, which start-up will change; equality ignores its terminal encoding.
TEST_F(Startup, DefaultSettingWithoutStartUp) {
    if (!env("PROBE_NO_START")) {
        GTEST_SKIP() << "started";
    }
    EXPECT_EQ(OvLcUtil::getLcStatus(), 2);
    EXPECT_EQ(OvLcUtil::getInitWarningMsg(), "");
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
    EXPECT_EQ(&OvLocale::global(), &OvLocale::classic());
    EXPECT_NE(&OvLocale::system(), &OvLocale::classic());
    EXPECT_TRUE(OvLocale::system() == OvLocale::classic());
    for (OvLocale const* locale : {&OvLocale::classic(), &OvLocale::system()}) {
        for (int c = OvLocale::ctype; c <= OvLocale::messages; ++c) {
            auto const category = static_cast<OvLocale::LcCategory>(c);
            EXPECT_EQ(locale->getLocaleName(category) + locale->getModifier(category) + " " +
                          locale->getLanguage(category) + "_" + locale->getRegion(category),
                      category == OvLocale::messages ? "en_US en_US" : "en_US_POSIX en_US");
        }
        EXPECT_EQ(locale->getEncoding(), "US-ASCII");
        EXPECT_EQ(
            boost::get<std::string>(locale->getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
            "US-ASCII");
    }
}

}  // namespace
