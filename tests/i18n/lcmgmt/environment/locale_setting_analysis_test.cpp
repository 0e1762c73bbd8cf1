#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "i18n/lcmgmt/system_setting_reader.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace fl::i18n::lcmgmt;

fl::i18n::lcmgmt::Lcdb const& database() {
    static Lcdb const db;
    return db;
}

struct analysis_case {
    char const* what;
    char const* ctype;     // xpg[0]
    char const* messages;  // xpg[5]; the other categories follow ctype
    char const* codeset;
    int l10n_control;
    bool valid;
    char const* ctype_locale;
    char const* messages_locale;
    char const* lang;         // new_env[13]
    char const* lc_numeric;   // new_env[3]
    char const* lc_messages;  // new_env[5]
};

class Analysis : public testing::TestWithParam<analysis_case> {};

TEST_P(Analysis, DecidesLocalesAndEnvironment) {
    analysis_case const& c = GetParam();
    locale_env_snapshot s;
    s.xpg.fill(c.ctype);
    s.xpg[5] = c.messages;
    s.xpg_encoding = c.codeset;
    s.l10n_control = c.l10n_control;
    EXPECT_EQ(analyse_locale_setting(database(), s), c.valid);
    EXPECT_EQ(s.category_locale[0].first + s.category_locale[0].second, c.ctype_locale);
    EXPECT_EQ(s.category_locale[5].first + s.category_locale[5].second, c.messages_locale);
    EXPECT_EQ(s.new_env[13], c.lang);
    EXPECT_EQ(s.new_env[3], c.lc_numeric);
    EXPECT_EQ(s.new_env[5], c.lc_messages);
    EXPECT_EQ(s.new_env[12], "") << "LC_ALL is never installed";
}

// The common settings are run end to end by the locale_env scenarios; these are the ones the
// environment can't easily show.
INSTANTIATE_TEST_SUITE_P(
    Settings, Analysis,
    testing::Values(analysis_case{"unknown messages", "de_DE.UTF-8", "qq_QQ.UTF-8", "UTF-8", 0,
                                  false, "de_DE", "en_US", "de_DE.UTF-8", "C", "C"},
                    analysis_case{"codeset ICU can't open", "de_DE.X", "de_DE.X", "NO-SUCH-CODESET",
                                  0, false, "de_DE", "de_DE", "de_DE.X", "C", ""},
                    analysis_case{"messages off under C", "C", "C", "ANSI_X3.4-1968", 2, true,
                                  "en_US_POSIX", "en_US_POSIX", "C", "", ""}));

TEST(AnalysisOfOtherCategories, UnknownOnesAreDroppedWithoutError) {
    locale_env_snapshot s;
    s.xpg.fill("de_DE.UTF-8");
    s.xpg[6] = "qq_QQ.UTF-8";  // LC_PAPER: unknown, dropped
    s.xpg[7] = "fr_FR.UTF-8";  // LC_NAME: kept
    s.xpg_encoding = "UTF-8";
    EXPECT_TRUE(analyse_locale_setting(database(), s));
    EXPECT_EQ(s.new_env[6], "");
    EXPECT_EQ(s.new_env[7], "fr_FR.UTF-8");
}

}  // namespace
