// The tests run in one process in the order written: the first touch comes first, then the first
// start; the German setting of the environment shows after it.
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <gtest/gtest.h>

#include "support/run_together.hpp"

#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

using fl::i18n::OvLcUtil;
using fl::i18n::OvLocale;

constexpr int thread_count = 8;

// What one thread sees of the manager; every thread must see the same.
using observation = std::tuple<OvLocale const*, OvLocale const*, OvLocale const*, int, std::string,
                               std::string, std::size_t, bool>;

observation observe() {
    OvLocale const& global = OvLocale::global();
    return observation(
        &global, &OvLocale::classic(), &OvLocale::system(), OvLcUtil::getLcStatus(),
        OvLcUtil::getInitStatusMsg(), global.getLocaleName(OvLocale::getLcCategory("MESSAGES")),
        OvLcUtil::getLocaleInformation().size(), fl::i18n::get_l10n_resource_status());
}

TEST(ManagerThreads, FirstTouchCreatesOneManager) {
    std::vector<observation> seen(thread_count);
    run_together(thread_count, [&seen](int i) { seen[i] = observe(); });
    for (observation const& o : seen) {
        EXPECT_TRUE(o == seen[0]);
    }
    EXPECT_EQ(std::get<3>(seen[0]), 2);
    EXPECT_EQ(std::get<0>(seen[0]), std::get<1>(seen[0])) << "global isn't classic";
    EXPECT_EQ(std::get<5>(seen[0]), "en_US");
}

TEST(ManagerThreads, StartUpRunsOnceWhoeverAsks) {
    std::vector<observation> seen(thread_count);
    run_together(thread_count, [&seen](int i) {
        if (i % 2 == 0) {
            fl::i18n::initialize();
        } else {
            fl::i18n::initLcMgmtSystem();
        }
        seen[i] = observe();
    });
    for (observation const& o : seen) {
        EXPECT_TRUE(o == seen[0]);
    }
    EXPECT_EQ(std::get<3>(seen[0]), 0) << "not started";
    EXPECT_TRUE(seen[0] == observe());
}

// Started in a real German locale: the messages switch to English once, whoever asks first.
TEST(ManagerThreads, OneSwitchToEnglishWhileOthersRead) {
    fl::i18n::initialize();
    ASSERT_EQ(OvLocale::global().getLocaleName(OvLocale::messages), "de_DE");
    auto const english_request = OvLocale::createLocale("en_US");
    std::vector<std::set<std::string>> seen_messages(thread_count);
    run_together(thread_count, [&](int i) {
        switch (i % 4) {
            case 0:
                fl::i18n::disable_l10n_resource();
                break;
            case 1:
                fl::i18n::change_global_locale(*english_request);
                break;
            default:
                for (int round = 0; round < 200; ++round) {
                    seen_messages[i].insert(OvLocale::global().getLocaleName(OvLocale::messages));
                    fl::i18n::get_l10n_resource_status();
                }
        }
    });

    for (auto const& messages : seen_messages) {
        for (std::string const& name : messages) {
            EXPECT_TRUE(name == "de_DE" || name == "en_US") << name;
        }
    }
    EXPECT_FALSE(fl::i18n::get_l10n_resource_status());
    EXPECT_EQ(OvLocale::global().getLocaleName(OvLocale::messages), "en_US");
    EXPECT_EQ(OvLocale::global().getLocaleName(OvLocale::ctype), "de_DE");
}

}  // namespace
