// One start-up per process, checked against the scenario's EXPECT_* variables (each optional):
//   EXPECT_STATUS, EXPECT_STATUS_MESSAGE (substring of getInitWarningMsg), EXPECT_WARNINGS (the
//   start-up warnings joined by "|"), EXPECT_DATABASE_FILE, EXPECT_ENCODING, EXPECT_CTYPE and
//   EXPECT_MESSAGES (global locale), EXPECT_LANG (afterwards; empty means unset),
//   EXPECT_C_CTYPE (the C library's LC_CTYPE afterwards), EXPECT_ICU_LOCALE,
//   EXPECT_ALIAS ("name=canonical", canonical empty when the name must be unknown),
//   EXPECT_INITIALIZE_THROWS (1: initialize() throws InvalidArgument).
#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <unicode/locid.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

using fl::i18n::OvLcUtil;
using fl::i18n::OvLocale;

bool expected(char const* name, std::string& value) {
    char const* found = std::getenv(name);
    if (found == nullptr) {
        return false;
    }
    value = found;
    return true;
}

std::string joined(std::vector<std::string> const& items) {
    std::string result;
    for (std::string const& item : items) {
        result += (result.empty() ? "" : "|") + item;
    }
    return result;
}

class Startup : public testing::Test {
protected:
    static void SetUpTestSuite() {
        std::string throws;
        if (expected("EXPECT_INITIALIZE_THROWS", throws)) {
            EXPECT_THROW(fl::i18n::initialize(), fl::filesystem::InvalidArgument);
        } else {
            fl::i18n::initialize();
        }
    }
};

TEST_F(Startup, StatusAndDatabase) {
    std::string value;
    if (expected("EXPECT_STATUS", value)) {
        EXPECT_EQ(std::stoi(value), OvLcUtil::getLcStatus());
    }
    if (expected("EXPECT_STATUS_MESSAGE", value)) {
        EXPECT_NE(OvLcUtil::getInitWarningMsg().find(value), std::string::npos)
            << OvLcUtil::getInitWarningMsg();
    }
    if (expected("EXPECT_WARNINGS", value)) {
        EXPECT_EQ(value, joined(fl::i18n::get_startup_warnings()));
    }
    if (expected("EXPECT_DATABASE_FILE", value)) {
        EXPECT_EQ(value, fl::i18n::get_locale_database_file());
    }
    if (expected("EXPECT_ALIAS", value)) {
        std::size_t const eq = value.find('=');
        std::string const canonical = value.substr(eq + 1);
        if (canonical.empty()) {
            EXPECT_THROW(OvLocale::createLocale(value.substr(0, eq)), fl::i18n::OvLcInvLcName);
        } else {
            EXPECT_EQ(canonical,
                      OvLocale::createLocale(value.substr(0, eq))->getLocaleName(OvLocale::ctype));
        }
    }
}

TEST_F(Startup, GlobalLocaleAndWhatOthersWereTold) {
    std::string value;
    if (expected("EXPECT_ENCODING", value)) {
        EXPECT_EQ(value, OvLocale::global().getEncoding());
    }
    if (expected("EXPECT_CTYPE", value)) {
        EXPECT_EQ(value, OvLocale::global().getLocaleName(OvLocale::ctype));
    }
    if (expected("EXPECT_MESSAGES", value)) {
        EXPECT_EQ(value, OvLocale::global().getLocaleName(OvLocale::messages));
    }
    if (expected("EXPECT_LANG", value)) {
        char const* lang = std::getenv("LANG");
        EXPECT_EQ(value, lang == nullptr ? "" : lang);
    }
    if (expected("EXPECT_C_CTYPE", value)) {
        EXPECT_STREQ(value.c_str(), std::setlocale(LC_CTYPE, nullptr));
    }
    if (expected("EXPECT_ICU_LOCALE", value)) {
        EXPECT_STREQ(value.c_str(), icu::Locale::getDefault().getName());
    }
}

// Numbers in UTF-16 streams use the classic punctuation whatever the process locale.
TEST_F(Startup, StandardLibraryLocaleIsInstalled) {
    if (std::getenv("EXPECT_INITIALIZE_THROWS") != nullptr) {
        GTEST_SKIP() << "start-up stopped before installing it";
    }
    std::basic_ostringstream<char16_t> out;
    out.imbue(fl::i18n::facet::get_global_std_locale());
    out << 1234567 << u' ' << 0.5;
    EXPECT_TRUE(out.str() == u"1234567 0.5");
}

}  // namespace
