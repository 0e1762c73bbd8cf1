// Each test runs in its own process: the changes it makes to the manager are one-way. The fixture
// gives the manager a German user locale, as start-up would for LANG=de_DE.UTF-8, without
// depending on which locales the C library has installed.
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using fl::i18n::OvLocale;
using fl::i18n::OvLocaleImpl;
using fl::i18n::lcmgmt::manager_context;

std::unique_ptr<OvLocaleImpl> locale_with_messages(std::string const& messages) {
    auto locale = std::make_unique<OvLocaleImpl>(nullptr);
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        locale->set_category("de_DE", "euro", static_cast<OvLocale::LcCategory>(c));
    }
    locale->set_category(messages, "euro", OvLocale::messages);
    locale->set_encoding("ISO-8859-15");
    locale->set_terminal_encoding("UTF-8");
    return locale;
}

class ManagerSequence : public testing::Test {
protected:
    void SetUp() override { use_user_messages("de_DE"); }

    void use_user_messages(std::string const& messages) {
        context.user_locale = locale_with_messages(messages);
        context.global_locale.store(context.user_locale.get());
    }

    OvLocale const* global() const { return &OvLocale::global(); }
    OvLocale const* user() const { return context.user_locale.get(); }

    void expect_english_messages() const {
        OvLocale const& g = OvLocale::global();
        EXPECT_NE(&g, user());
        EXPECT_EQ(&g, context.english_messages_locale.get());
        EXPECT_EQ(g.getLocaleName(OvLocale::messages), "en_US");
        EXPECT_EQ(g.getModifier(OvLocale::messages), "");
        for (auto c : {OvLocale::ctype, OvLocale::collate, OvLocale::time, OvLocale::numeric,
                       OvLocale::monetary}) {
            EXPECT_EQ(g.getLocaleName(c), "de_DE");
            EXPECT_EQ(g.getModifier(c), "@euro");
        }
        EXPECT_EQ(g.getEncoding(), "ISO-8859-15");
        EXPECT_EQ(boost::get<std::string>(g.getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
                  "UTF-8");
        EXPECT_EQ(context.setting.l10n_control, 2);
        EXPECT_FALSE(fl::i18n::get_l10n_resource_status());
        // The user locale itself is never touched.
        EXPECT_EQ(user()->getLocaleName(OvLocale::messages), "de_DE");
    }

    manager_context& context = manager_context::instance();
};

TEST_F(ManagerSequence, ChangeToEnglishMessagesSwitchesAndLocks) {
    fl::i18n::change_global_locale(*locale_with_messages("en_US"));
    expect_english_messages();
    EXPECT_TRUE(context.global_locale_locked);

    OvLocale const* const english = global();
    fl::i18n::disable_l10n_resource();
    EXPECT_EQ(global(), english) << "switched twice";
}

TEST_F(ManagerSequence, ChangeToPosixMessagesCountsAsEnglish) {
    fl::i18n::change_global_locale(*locale_with_messages("en_US_POSIX"));
    expect_english_messages();
}

TEST_F(ManagerSequence, ChangeToAnotherLanguageOnlyLocks) {
    fl::i18n::change_global_locale(*locale_with_messages("fr_FR"));
    EXPECT_EQ(global(), user());
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
    EXPECT_TRUE(context.global_locale_locked);
    EXPECT_EQ(context.english_messages_locale.get(), nullptr);

    fl::i18n::change_global_locale(*locale_with_messages("en_US"));
    EXPECT_EQ(global(), user());
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());

    // The lock governs change_global_locale only.
    fl::i18n::disable_l10n_resource();
    expect_english_messages();
}

TEST_F(ManagerSequence, LockedSettingIgnoresChanges) {
    fl::i18n::lock_global_locale_setting();
    EXPECT_TRUE(context.global_locale_locked);
    fl::i18n::change_global_locale(*locale_with_messages("en_US"));
    EXPECT_EQ(global(), user());
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
    EXPECT_EQ(context.english_messages_locale.get(), nullptr);
}

TEST_F(ManagerSequence, DisableSwitchesOnceAndLeavesTheSettingUnlocked) {
    fl::i18n::disable_l10n_resource();
    expect_english_messages();
    OvLocale const* const english = global();

    fl::i18n::disable_l10n_resource();
    EXPECT_EQ(global(), english);

    // With resources off, change_global_locale returns before it would lock.
    fl::i18n::change_global_locale(*locale_with_messages("fr_FR"));
    EXPECT_FALSE(context.global_locale_locked);
    EXPECT_EQ(global(), english);
}

TEST_F(ManagerSequence, EnglishUserLocaleNeverSwitches) {
    use_user_messages("en_US");
    fl::i18n::change_global_locale(*locale_with_messages("en_US"));
    EXPECT_EQ(global(), user());
    EXPECT_TRUE(fl::i18n::get_l10n_resource_status());
    EXPECT_TRUE(context.global_locale_locked);

    fl::i18n::disable_l10n_resource();
    EXPECT_EQ(global(), user());
    EXPECT_FALSE(fl::i18n::get_l10n_resource_status());
    EXPECT_EQ(context.english_messages_locale.get(), nullptr);
}

}  // namespace
