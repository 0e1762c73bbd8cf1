#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using fl::i18n::OvLcDataNotFound;
using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;

// Names map both ways, ignoring ASCII case only: a dotless capital I is no "i".
TEST(Vocabulary, CategoryNamesRoundTripIgnoringAsciiCase) {
    char const* const names[] = {"ctype", "collate", "time", "numeric", "monetary", "messages"};
    for (int c = 0; c < 6; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        EXPECT_EQ(OvLocale::getLcCategoryName(category), names[c]);
        std::string upper = names[c];
        upper[c % upper.size()] = char(upper[c % upper.size()] - 'a' + 'A');
        EXPECT_EQ(OvLocale::getLcCategory(upper), category) << upper;
    }
    for (int unnamed : {6, 7}) {
        EXPECT_THROW(OvLocale::getLcCategoryName(static_cast<OvLocale::LcCategory>(unnamed)),
                     OvLcDataNotFound);
    }
    for (char const* bad : {"", "lc_ctype", "message", "ctype ", "all", "paper", "t\xC4\xB0me"}) {
        EXPECT_THROW(OvLocale::getLcCategory(bad), OvLcDataNotFound) << bad;
    }
}

TEST(Vocabulary, OptionalDataTypesIgnoreAsciiCase) {
    char const* const names[] = {"jvmencoding",        "TermEncoding", "terminputencoding",
                                 "TERMOUTPUTENCODING", "PaperSize",    "unittype"};
    for (int t = 0; t < 6; ++t) {
        EXPECT_EQ(OvLcOptDataCtx::getOptDataType(names[t]), t) << names[t];
    }
    for (char const* bad : {"size", "", "paper_size", "papersize ", "ctype"}) {
        EXPECT_THROW(OvLcOptDataCtx::getOptDataType(bad), OvLcDataNotFound) << bad;
    }
}

}  // namespace
