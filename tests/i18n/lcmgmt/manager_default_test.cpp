// Runs in a process that never calls initialize(): everything answers from the default setting.
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <cstdlib>
#include <string>

namespace {

using fl::i18n::OvLcUtil;
using fl::i18n::OvLocale;

TEST(DefaultSetting, ReportsNotInitialized) {
    EXPECT_EQ(OvLcUtil::getLcStatus(), 2);
    EXPECT_EQ(OvLcUtil::getInitStatusMsg(), "Orvane locale management system not initialized.");
    EXPECT_EQ(OvLcUtil::getInitWarningMsg(), "");
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
}

// The global locale is the classic one; the system locale is a separate object that differs only
// in its terminal encoding, which equality ignores.
TEST(DefaultSetting, GlobalAndSystemAreThePosixLocale) {
    EXPECT_EQ(&OvLocale::global(), &OvLocale::classic());
    EXPECT_NE(&OvLocale::system(), &OvLocale::classic());
    EXPECT_TRUE(OvLocale::system() == OvLocale::classic());
    EXPECT_FALSE(OvLocale::system() != OvLocale::classic());
    for (OvLocale const* locale : {&OvLocale::classic(), &OvLocale::system()}) {
        for (int c = 0; c < 6; ++c) {
            auto const category = static_cast<OvLocale::LcCategory>(c);
            SCOPED_TRACE(OvLocale::getLcCategoryName(category));
            EXPECT_EQ(locale->getLocaleName(category),
                      category == OvLocale::messages ? "en_US" : "en_US_POSIX");
            EXPECT_EQ(locale->getModifier(category), "");
            EXPECT_EQ(locale->getLanguage(category), "en");
            EXPECT_EQ(locale->getRegion(category), "US");
        }
        EXPECT_EQ(locale->getEncoding(), "US-ASCII");
        EXPECT_EQ(
            boost::get<std::string>(locale->getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
            "US-ASCII");
    }
}

// ICU's default converter name can't be checked here: ICU on Linux is built with its default
// charset fixed to UTF-8, and ignores ucnv_setDefaultName.
TEST(DefaultSetting, IcuDefaultLocaleIsPosix) {
    OvLocale::global();
    EXPECT_STREQ(icu::Locale::getDefault().getName(), "en_US_POSIX");
}

TEST(DefaultSetting, ReadersNeverStartTheManager) {
    // The test's environment sets LC_ALL; start-up would remove it and change the status.
    ASSERT_STREQ(std::getenv("LC_ALL"), "C");
    OvLocale::classic();
    OvLocale::system();
    OvLocale::global();
    OvLcUtil::getInitStatusMsg();
    OvLcUtil::getInitWarningMsg();
    OvLcUtil::getLocaleInformation();
    fl::i18n::get_l10n_resource_status();
    EXPECT_EQ(OvLcUtil::getLcStatus(), 2);
    EXPECT_STREQ(std::getenv("LC_ALL"), "C");
}

}  // namespace
