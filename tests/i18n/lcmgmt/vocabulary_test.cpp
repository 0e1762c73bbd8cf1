#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"
#include "support/cloned_exception.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace fl::i18n;

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

// The last row is a throw of the library's own.
TEST(LcMgmtException, KeepsItsFieldsAndClassThroughCloning) {
    struct {
        std::function<void()> raise;
        char const* id;
        int code;
        char const* message;
        char const* detail;
    } const cases[] = {
        {[] { fl::detail::throw_exception(OvLcInvLcName("xx_YY.bogus")); }, "fl:i18n:OvLcInvLcName",
         1, "Invalid locale name.", "xx_YY.bogus"},
        {[] { fl::detail::throw_exception(OvLcDataNotFound()); }, "fl:i18n:OvLcDataNotFound", 2,
         "Locale data not found.", ""},
        {[] { fl::detail::throw_exception(OvLcInvLcArgument()); }, "fl:i18n:OvLcInvLcArgument", 4,
         "Invalid argument.", ""},
        {[] { OvLocale::getLcCategory("no such category"); }, "fl:i18n:OvLcDataNotFound", 2,
         "Locale data not found.", ""},
    };
    for (auto const& c : cases) {
        expect_cloned_as_thrown<OvLcMgmtExceptionBase>(c.raise, [&](auto const& e) {
            EXPECT_EQ(e.getId(), c.id);
            EXPECT_EQ(e.getCode(), c.code);
            EXPECT_EQ(e.getMessage(), c.message);
            EXPECT_STREQ(e.what(), c.message);
            EXPECT_EQ(e.getDetail(), c.detail);
        });
    }
}

}  // namespace
