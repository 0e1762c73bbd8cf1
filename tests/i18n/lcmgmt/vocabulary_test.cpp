#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using fl::i18n::OvLcDataNotFound;
using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;

struct name_case {
    char const* name;
    int value;  // -1: unknown
};

class CategoryByName : public testing::TestWithParam<name_case> {};

TEST_P(CategoryByName, IgnoresAsciiCase) {
    if (GetParam().value < 0) {
        EXPECT_THROW(OvLocale::getLcCategory(GetParam().name), OvLcDataNotFound);
    } else {
        EXPECT_EQ(OvLocale::getLcCategory(GetParam().name), GetParam().value);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, CategoryByName,
                         testing::Values(name_case{"ctype", 0}, name_case{"CTYPE", 0},
                                         name_case{"Collate", 1}, name_case{"time", 2},
                                         name_case{"NuMeRiC", 3}, name_case{"monetary", 4},
                                         name_case{"Messages", 5}, name_case{"", -1},
                                         name_case{"lc_ctype", -1}, name_case{"message", -1},
                                         name_case{"ctype ", -1}, name_case{"all", -1},
                                         name_case{"paper", -1},
                                         // Only ASCII letters fold: a dotless capital I is no "i".
                                         name_case{"t\xC4\xB0me", -1}));

TEST(CategoryNames, RoundTripAndRejectUnnamedValues) {
    char const* const expected[] = {"ctype", "collate", "time", "numeric", "monetary", "messages"};
    for (int c = 0; c < 6; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        EXPECT_EQ(OvLocale::getLcCategoryName(category), expected[c]);
        EXPECT_EQ(OvLocale::getLcCategory(expected[c]), category);
    }
    EXPECT_THROW(OvLocale::getLcCategoryName(static_cast<OvLocale::LcCategory>(6)),
                 OvLcDataNotFound);
    EXPECT_THROW(OvLocale::getLcCategoryName(static_cast<OvLocale::LcCategory>(7)),
                 OvLcDataNotFound);
}

class OptDataTypeByName : public testing::TestWithParam<name_case> {};

TEST_P(OptDataTypeByName, IgnoresAsciiCase) {
    if (GetParam().value < 0) {
        EXPECT_THROW(OvLcOptDataCtx::getOptDataType(GetParam().name), OvLcDataNotFound);
    } else {
        EXPECT_EQ(OvLcOptDataCtx::getOptDataType(GetParam().name), GetParam().value);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, OptDataTypeByName,
                         testing::Values(name_case{"jvmencoding", 0}, name_case{"TermEncoding", 1},
                                         name_case{"terminputencoding", 2},
                                         name_case{"TERMOUTPUTENCODING", 3},
                                         name_case{"PaperSize", 4}, name_case{"unittype", 5},
                                         name_case{"size", -1}, name_case{"", -1},
                                         name_case{"paper_size", -1}, name_case{"ctype", -1}));

}  // namespace
