// Runs start-up in this process; white-box, to see that a second start changes nothing.
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using fl::i18n::lcmgmt::manager_context;

TEST(StartUp, RunsOnceAndReleasesTheMutex) {
    manager_context& context = manager_context::instance();
    EXPECT_FALSE(context.initialized);
    fl::i18n::initialize();
    EXPECT_TRUE(context.initialized);
    ASSERT_TRUE(context.mutex.try_lock()) << "start-up left the manager's mutex held";
    context.mutex.unlock();

    // Marks that a second run of the start-up sequence would overwrite.
    context.status = 42;
    context.status_message = "marker";
    auto const* const global = &fl::i18n::OvLocale::global();
    auto const* const user = context.user_locale.get();
    auto const* const system = context.system_locale.get();
    std::size_t const warnings = context.warnings.size();
    ASSERT_EQ(setenv("LC_ALL", "C", 1), 0);

    fl::i18n::initialize();
    fl::i18n::initLcMgmtSystem();

    EXPECT_EQ(fl::i18n::OvLcUtil::getLcStatus(), 42);
    EXPECT_EQ(fl::i18n::OvLcUtil::getInitWarningMsg(), "marker");
    EXPECT_EQ(fl::i18n::OvLcUtil::getInitStatusMsg(), "");
    EXPECT_EQ(&fl::i18n::OvLocale::global(), global);
    EXPECT_EQ(context.user_locale.get(), user);
    EXPECT_EQ(context.system_locale.get(), system);
    EXPECT_EQ(context.warnings.size(), warnings);
    ASSERT_NE(std::getenv("LC_ALL"), nullptr);
    EXPECT_STREQ(std::getenv("LC_ALL"), "C");
    ASSERT_TRUE(context.mutex.try_lock());
    context.mutex.unlock();
}

}  // namespace
