#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

// Only "true", in any case, turns the UTF-8 default on.
TEST(CreateLocaleUtf8Default, YesIsNotTrue) {
    fl::i18n::initialize();
    EXPECT_EQ(fl::i18n::OvLocale::createLocale("ja_JP")->getEncoding(), "Shift_JIS");
}
