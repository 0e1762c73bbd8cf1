// Runs in a process that never calls initialize(): everything answers from the default setting.
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <cstdlib>
#include <map>
#include <string>

namespace {

using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLcUtil;
using fl::i18n::OvLocale;

std::string env(char const* name) {
    char const* value = std::getenv(name);
    return value ? value : "<unset>";
}

std::string terminal_encoding(OvLocale const& locale) {
    return boost::get<std::string>(locale.getOptData(OvLcOptDataCtx::termencoding));
}

void expect_posix_categories(OvLocale const& locale) {
    for (int c = 0; c < 6; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        SCOPED_TRACE(OvLocale::getLcCategoryName(category));
        EXPECT_EQ(locale.getLocaleName(category),
                  category == OvLocale::messages ? "en_US" : "en_US_POSIX");
        EXPECT_EQ(locale.getModifier(category), "");
        EXPECT_EQ(locale.getLanguage(category), "en");
        EXPECT_EQ(locale.getRegion(category), "US");
    }
    EXPECT_EQ(locale.getEncoding(), "US-ASCII");
    EXPECT_EQ(terminal_encoding(locale), "US-ASCII");
}

TEST(DefaultSetting, ReportsNotInitialized) {
    EXPECT_EQ(OvLcUtil::getLcStatus(), 2);
    EXPECT_EQ(OvLcUtil::getInitStatusMsg(), "Orvane locale management system not initialized.");
    EXPECT_EQ(OvLcUtil::getInitWarningMsg(), "");
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
}

TEST(DefaultSetting, GlobalIsTheClassicLocale) {
    EXPECT_EQ(&OvLocale::global(), &OvLocale::classic());
    expect_posix_categories(OvLocale::classic());
}

TEST(DefaultSetting, SystemLocaleDiffersOnlyInItsTerminalEncoding) {
    OvLocale const& system = OvLocale::system();
    EXPECT_NE(&system, &OvLocale::classic());
    expect_posix_categories(system);
    EXPECT_TRUE(system == OvLocale::classic());
    EXPECT_FALSE(system != OvLocale::classic());
}

// ICU's default converter name can't be checked here: ICU on Linux is built with its default
// charset fixed to UTF-8, and ignores ucnv_setDefaultName.
TEST(DefaultSetting, IcuDefaultLocaleIsPosix) {
    OvLocale::global();
    EXPECT_STREQ(icu::Locale::getDefault().getName(), "en_US_POSIX");
}

TEST(DefaultSetting, LocaleInformationHasEveryKeyEmpty) {
    static char const* const words[] = {"Ctype",    "Collate",   "Time",        "Numeric",
                                        "Monetary", "Messages",  "Paper",       "Name",
                                        "Address",  "Telephone", "Measurement", "Identification"};
    std::map<std::string, std::string> expected;
    for (char const* word : words) {
        expected[std::string("InitialXpgLc") + word] = "";
        expected[std::string("XpgLc") + word] = "";
        expected[std::string("XpgEnvLc") + word] = "";
    }
    expected["XpgEnvLcAll"] = "";
    expected["XpgEnvLang"] = "";
    expected["XpgEncoding"] = "";
    EXPECT_EQ(OvLcUtil::getLocaleInformation(), expected);
}

TEST(DefaultSetting, ReadersNeverStartTheManager) {
    // The test's environment sets LC_ALL; start-up would remove it and change the status.
    ASSERT_EQ(env("LC_ALL"), "C");
    OvLocale::classic();
    OvLocale::system();
    OvLocale::global();
    OvLcUtil::getInitStatusMsg();
    OvLcUtil::getInitWarningMsg();
    OvLcUtil::getLocaleInformation();
    fl::i18n::get_l10n_resource_status();
    EXPECT_EQ(OvLcUtil::getLcStatus(), 2);
    EXPECT_EQ(env("LC_ALL"), "C");
}

}  // namespace
