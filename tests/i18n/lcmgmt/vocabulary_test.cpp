#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using fl::i18n::OvLcDataNotFound;
using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;

void expect_lookups(std::function<int(std::string const&)> const& lookup,
                    std::vector<std::pair<char const*, int>> const& known,
                    std::vector<char const*> const& unknown) {
    for (auto const& k : known) {
        EXPECT_EQ(lookup(k.first), k.second) << k.first;
    }
    for (char const* name : unknown) {
        EXPECT_THROW(lookup(name), OvLcDataNotFound) << '"' << name << '"';
    }
}

// Only ASCII letters fold: a dotless capital I is no "i".
TEST(Vocabulary, CategoryNamesIgnoreAsciiCase) {
    expect_lookups([](std::string const& n) { return OvLocale::getLcCategory(n); },
                   {{"ctype", 0},
                    {"CTYPE", 0},
                    {"Collate", 1},
                    {"time", 2},
                    {"NuMeRiC", 3},
                    {"monetary", 4},
                    {"Messages", 5}},
                   {"", "lc_ctype", "message", "ctype ", "all", "paper", "t\xC4\xB0me"});
}

TEST(Vocabulary, CategoryNamesRoundTripAndRejectUnnamedValues) {
    char const* const expected[] = {"ctype", "collate", "time", "numeric", "monetary", "messages"};
    for (int c = 0; c < 6; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        EXPECT_EQ(OvLocale::getLcCategoryName(category), expected[c]);
        EXPECT_EQ(OvLocale::getLcCategory(expected[c]), category);
    }
    for (int unnamed : {6, 7}) {
        EXPECT_THROW(OvLocale::getLcCategoryName(static_cast<OvLocale::LcCategory>(unnamed)),
                     OvLcDataNotFound);
    }
}

TEST(Vocabulary, OptionalDataTypesIgnoreAsciiCase) {
    expect_lookups([](std::string const& n) { return OvLcOptDataCtx::getOptDataType(n); },
                   {{"jvmencoding", 0},
                    {"TermEncoding", 1},
                    {"terminputencoding", 2},
                    {"TERMOUTPUTENCODING", 3},
                    {"PaperSize", 4},
                    {"unittype", 5}},
                   {"size", "", "paper_size", "papersize ", "ctype"});
}

}  // namespace
