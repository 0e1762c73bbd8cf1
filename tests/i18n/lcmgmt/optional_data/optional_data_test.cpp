#include <fl/i18n/lcmgmt.hpp>

#include "i18n/lcmgmt/manager_context.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using fl::i18n::OvLcOptDataCtx;
using fl::i18n::OvLocale;
using fl::i18n::OvLocaleImpl;

std::unique_ptr<OvLocaleImpl> make_locale(std::string const& time, std::string const& others,
                                          std::string const& encoding,
                                          std::string const& terminal) {
    auto locale =
        std::make_unique<OvLocaleImpl>(&fl::i18n::lcmgmt::manager_context::instance().database());
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        auto const category = static_cast<OvLocale::LcCategory>(c);
        locale->set_category(category == OvLocale::time ? time : others, "", category);
    }
    locale->set_encoding(encoding);
    locale->set_terminal_encoding(terminal);
    return locale;
}

TEST(OptData, PaperSizeAndUnitsFollowTheTimeCategory) {
    // Only the time category counts, whatever the others say.
    struct {
        char const* time;
        char const* others;
        OvLcOptDataCtx::LcPaperSizeType paper;
        OvLcOptDataCtx::LcUnitType unit;
    } const cases[] = {
        {"de_DE", "en_US", OvLcOptDataCtx::paper_a4, OvLcOptDataCtx::unit_metric},
        {"en_US", "de_DE", OvLcOptDataCtx::paper_other, OvLcOptDataCtx::unit_us},
        {"en_GB", "en_US", OvLcOptDataCtx::paper_a4, OvLcOptDataCtx::unit_british},
        {"en_CA", "en_CA", OvLcOptDataCtx::paper_other, OvLcOptDataCtx::unit_metric},
        {"ja_JP", "en_US", OvLcOptDataCtx::paper_a4, OvLcOptDataCtx::unit_metric},
        {"en_US_POSIX", "fr_FR", OvLcOptDataCtx::paper_other, OvLcOptDataCtx::unit_us},
    };
    for (auto const& c : cases) {
        auto const locale = make_locale(c.time, c.others, "UTF-8", "");
        EXPECT_EQ(boost::get<OvLcOptDataCtx::LcPaperSizeType>(
                      locale->getOptData(OvLcOptDataCtx::papersize)),
                  c.paper)
            << c.time;
        EXPECT_EQ(
            boost::get<OvLcOptDataCtx::LcUnitType>(locale->getOptData(OvLcOptDataCtx::unittype)),
            c.unit)
            << c.time;
    }
}

TEST(OptData, EncodingsForJvmAndTerminal) {
    struct {
        char const* encoding;
        char const* terminal;
        char const* jvm;
        char const* term;
    } const cases[] = {
        {"windows-1252", "", "Cp1252", "windows-1252"},  // the database's JVM name
        {"Shift_JIS", "UTF-8", "MS932", "UTF-8"},        // a terminal encoding of its own wins
        {"UTF-8", "", "UTF-8", "UTF-8"},                 // no JVM name: the standard name
        {"x-unknown", "", "x-unknown", "x-unknown"},     // unknown to the database: passed on
    };
    for (auto const& c : cases) {
        auto const locale = make_locale("de_DE", "de_DE", c.encoding, c.terminal);
        auto const text = [&locale](OvLcOptDataCtx::LcOptDataType type) {
            return boost::get<std::string>(locale->getOptData(type));
        };
        EXPECT_EQ(text(OvLcOptDataCtx::jvmencoding), c.jvm) << c.encoding;
        EXPECT_EQ(text(OvLcOptDataCtx::termencoding), c.term) << c.encoding;
        EXPECT_EQ(text(OvLcOptDataCtx::terminputencoding), c.term) << c.encoding;
        EXPECT_EQ(text(OvLcOptDataCtx::termoutputencoding), c.term) << c.encoding;
    }
}

}  // namespace
