#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <string>

// Runs with OVLOCALE_USE_UTF8_AS_DEFAULT set: names without an encoding get UTF-8 once started.
TEST(CreateLocaleUtf8Default, NamesWithoutEncodingGetUtf8) {
    // Before start-up the variable hasn't been read.
    EXPECT_EQ(fl::i18n::OvLocale::createLocale("ja_JP")->getEncoding(), "Shift_JIS");
    fl::i18n::initialize();
    EXPECT_EQ(fl::i18n::OvLocale::createLocale("ja_JP")->getEncoding(), "UTF-8");
    EXPECT_EQ(fl::i18n::OvLocale::createLocale("ja_JP.Shift_JIS")->getEncoding(), "Shift_JIS");
    EXPECT_EQ(fl::i18n::OvLocale::createLocale("C")->getEncoding(), "UTF-8");
}
