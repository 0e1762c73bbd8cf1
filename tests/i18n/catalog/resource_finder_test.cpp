#include <fl/i18n/catalog/resource_finder.hpp>
#include <fl/i18n/lcmgmt.hpp>

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using fl::filesystem::upath;
using fl::i18n::OvLocale;
using fl::i18n::resource_finder;
using fl::i18n::ustring;

class ResourceFinderTest : public testing::Test {
protected:
    void make(std::vector<std::string> const& files) {
        std::filesystem::remove_all(dir_.bytes("b1"));
        std::filesystem::remove_all(dir_.bytes("b2"));
        for (auto const& file : files) {
            std::filesystem::create_directories(
                std::filesystem::path(dir_.bytes(file)).parent_path());
            std::ofstream(dir_.bytes(file)) << "x";
        }
    }
    upath at(std::string const& file) const {
        return file.empty() ? upath() : upath(dir_.text(file));
    }
    std::vector<upath> bases() const { return {at("b1"), at("b2")}; }
    // The C library need not know the name: only the messages category is changed.
    static boost::shared_ptr<OvLocale> messages(std::string const& name) {
        return OvLocale::createLocale("de_DE", OvLocale::messages, name);
    }

    scratch_directory dir_{"resource_finder"};
};

TEST_F(ResourceFinderTest, TriesEachLocaleOverAllBasesBeforeTheNext) {
    struct {
        std::vector<std::string> files;
        bool use_default;
        std::u16string pattern;
        char const* found;
        char const* locale;
    } const cases[] = {
        {{"b1/x_de.xml", "b2/x_de_CH.xml"}, true, u"x_%S.xml", "b2/x_de_CH.xml", "de_CH"},
        {{"b2/x_de.xml", "b1/x_en.xml"}, true, u"x_%S.xml", "b2/x_de.xml", "de"},
        {{"b1/x_en.xml", "b1/x.xml"}, true, u"x_%S.xml", "b1/x_en.xml", "en"},
        // No default: the pattern without a locale, and without the "_" before it.
        {{"b1/x_en.xml", "b2/x.xml"}, false, u"x_%S.xml", "b2/x.xml", ""},
        {{"b1/de.xml"}, false, u"%S.xml", "b1/de.xml", "de"},
        {{"b1/x_fr.xml"}, true, u"x_%S.xml", "", ""},
        {{"b1/de/x_%S"}, true, u"%S/x_%S", "b1/de/x_%S", "de"},
        // No place for the locale: nothing found, yet the first locale is reported.
        {{"b1/x.xml"}, true, u"x.xml", "", "de_CH"},
        {{}, true, u"", "", "de_CH"},
    };
    auto const locale = messages("de_CH");
    for (auto const& c : cases) {
        make(c.files);
        resource_finder const finder(bases(), *locale, c.use_default, ustring());
        EXPECT_EQ(finder.find(c.pattern), at(c.found)) << c.found;
        EXPECT_EQ(finder.get_locale(), c.locale) << c.found;

        std::string found;
        EXPECT_EQ(resource_finder::find_resource(bases(), c.pattern, found, *locale, c.use_default,
                                                 ustring()),
                  at(c.found));
        EXPECT_EQ(found, *c.found != '\0' ? c.locale : "") << c.found;
    }
}

TEST_F(ResourceFinderTest, OtherLocalesFormattersAndBases) {
    make({"b1/x_de.xml", "b2/y_de.xml", "b2/z_en.xml"});
    resource_finder const finder({at("b1")}, *messages("de_CH"), true, u"{L}");
    EXPECT_EQ(finder.get_current_locale(), "de_CH");
    EXPECT_EQ(finder.find(u"y_%S.xml"), upath());
    EXPECT_TRUE(finder.add_base_path(at("b2")));
    EXPECT_FALSE(finder.add_base_path(at("b2")));
    ASSERT_EQ(finder.find(u"x_{L}.xml"), at("b1/x_de.xml"));
    ASSERT_EQ(finder.get_locale(), "de");

    // Another locale with a count of its own: the finder's last match stays.
    std::string found;
    EXPECT_EQ(finder.find(u"y_{L}.xml", *messages("de_AT"), found), at("b2/y_de.xml"));
    EXPECT_EQ(found, "de");
    EXPECT_EQ(finder.get_locale(), "de");
    // With a formatter, the finder's count goes on from 1 past de_AT to 2, and the answer is
    // the locale asked for.
    EXPECT_EQ(finder.find(u"y_%S.xml", *messages("de_AT"), u"%S", found), at("b2/y_de.xml"));
    EXPECT_EQ(found, "de_AT");
    EXPECT_EQ(finder.get_locale(), "en");
    EXPECT_EQ(finder.find(u"w_%S.xml", *messages("de_AT"), u"%S", found), upath());
    EXPECT_EQ(found, "");
    EXPECT_EQ(finder.get_locale(), "");

    EXPECT_TRUE(finder.remove_base_path(at("b1")));
    EXPECT_FALSE(finder.remove_base_path(at("b1")));
    EXPECT_EQ(finder.get_base_path_list(), std::vector<upath>{at("b2")});
    // The forms without bases take the pattern as the whole path.
    EXPECT_EQ(resource_finder::find_resource(dir_.text("b2/z_%S.xml"), found, *messages("de_CH"),
                                             true, u""),
              at("b2/z_en.xml"));
    EXPECT_EQ(found, "en");
}

}  // namespace
