// Readers never lock, so start-up must not change anything they may already hold.
#include <fl/i18n/codecvt/standard_encoding_name.hpp>
#include <fl/i18n/codecvt/string_conversion.hpp>
#include <fl/i18n/lcmgmt/fallback_locales.hpp>
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/lcmgmt/startup_report.hpp>
#include <fl/i18n/lcmgmt/system_setting.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

using fl::i18n::OvLocale;

// Everything a reader may do while start-up runs; the answers may be old or new, never torn.
void read_everything() {
    // A copy is taken from one state, so its encoding and terminal encoding agree.
    auto const system = OvLocale::createLocale(OvLocale::system());
    std::string const encoding = system->getEncoding();
    EXPECT_TRUE(encoding == "US-ASCII" || encoding == "UTF-8") << encoding;
    EXPECT_EQ(boost::get<std::string>(system->getOptData(fl::i18n::OvLcOptDataCtx::termencoding)),
              encoding);
    EXPECT_FALSE(OvLocale::global().getLocaleName(OvLocale::messages).empty());
    EXPECT_EQ(OvLocale::createLocale("de_DE.ISO-8859-15")->getEncoding(), "ISO-8859-15");
    auto const serbian = OvLocale::createLocale("sr-Latn_RS.UTF-8@x");
    EXPECT_EQ(serbian->getLocaleName(OvLocale::ctype), "sr-Latn_RS");
    EXPECT_EQ(fl::i18n::get_fallback_locales(*serbian).size(), 3u);
    EXPECT_TRUE(fl::i18n::lcmgmt::is_supported_encoding("cp1252"));
    EXPECT_EQ(fl::i18n::get_standard_encoding_name("utf8"), "UTF-8");
    EXPECT_EQ(fl::i18n::to_ustring("abc"), u"abc");
    // Start-up's own report: before it ran, or complete.
    using fl::i18n::OvLcUtil;
    EXPECT_NE(OvLcUtil::getLcStatus(), 1);
    std::string const codeset = OvLcUtil::getLocaleInformation().at("XpgEncoding");
    EXPECT_TRUE(codeset.empty() || codeset == "UTF-8") << codeset;
    EXPECT_FALSE(OvLcUtil::getInitStatusMsg().empty());
    EXPECT_TRUE(OvLcUtil::getInitWarningMsg().empty());
    EXPECT_TRUE(fl::i18n::get_startup_warnings().empty());
    auto const original = fl::i18n::lcmgmt::get_original_user_locale_setting();
    EXPECT_TRUE(original.encoding.empty() || original.encoding == "UTF-8") << original.encoding;
}

TEST(StartUpReaders, SeeOneSettingOrTheOtherWhileStartUpRuns) {
    OvLocale const& system_before = OvLocale::system();
    std::atomic<int> started{0};
    std::atomic<bool> done{false};
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            for (++started; !done;) {
                read_everything();
            }
            // And with one another once start-up is over.
            for (int round = 0; round < 50; ++round) {
                read_everything();
            }
        });
    }
    while (started < 3) {
        std::this_thread::yield();
    }
    fl::i18n::initialize();
    done = true;
    for (std::thread& reader : readers) {
        reader.join();
    }
    // The reference taken before start-up follows the new setting.
    EXPECT_EQ(&OvLocale::system(), &system_before);
    EXPECT_EQ(system_before.getEncoding(), "UTF-8");
    EXPECT_EQ(OvLocale::global().getEncoding(), "UTF-8");
}

}  // namespace
