#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"
#include "support/cloned_exception.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace fl::i18n;

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
