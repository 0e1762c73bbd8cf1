#include <fl/i18n/lcmgmt.hpp>

#include "i18n/lcmgmt/fallback_locales.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using fl::i18n::OvLocale;
using fl::i18n::ustring;

struct fallback_case {
    char const* messages;
    std::vector<ustring> with_en;
    std::vector<ustring> with_empty;
};

class Fallback : public testing::TestWithParam<fallback_case> {};

TEST_P(Fallback, ListsForTheMessagesCategory) {
    auto const locale = OvLocale::createLocale("de_DE", OvLocale::messages, GetParam().messages);
    EXPECT_EQ(fl::i18n::get_fallback_locales(*locale), GetParam().with_en);
    EXPECT_EQ(fl::i18n::get_fallback_locales_with_empty_default(*locale), GetParam().with_empty);
}

INSTANTIATE_TEST_SUITE_P(
    Names, Fallback,
    testing::Values(fallback_case{"de_DE", {u"de_DE", u"de", u"en"}, {u"de_DE", u"de", u""}},
                    fallback_case{"en_US", {u"en_US", u"en"}, {u"en_US", u"en", u""}},
                    fallback_case{"C", {u"en_US", u"en"}, {u"en_US", u"en", u""}},
                    fallback_case{"sr-Latn_BA",
                                  {u"sr-Latn_BA", u"sr-Latn", u"en"},
                                  {u"sr-Latn_BA", u"sr-Latn", u""}},
                    fallback_case{"ab", {u"ab_GE", u"ab", u"en"}, {u"ab_GE", u"ab", u""}}));

TEST(FallbackByName, OnlyTheLastPartIsDropped) {
    using fl::i18n::lcmgmt::fallback_locale_names;
    EXPECT_EQ(fallback_locale_names(std::string("en_US_POSIX"), std::string("en")),
              (std::vector<std::string>{"en_US_POSIX", "en_US", "en"}));
    EXPECT_EQ(fallback_locale_names(ustring(u"fr"), ustring(u"fr")), (std::vector<ustring>{u"fr"}));
    EXPECT_EQ(fallback_locale_names(ustring(u"de_DE"), ustring(u"xx")),
              (std::vector<ustring>{u"de_DE", u"de", u"xx"}));
    EXPECT_EQ(fallback_locale_names(OvLocale::classic(), "en"),
              (std::vector<std::string>{"en_US", "en"}));
}

}  // namespace
