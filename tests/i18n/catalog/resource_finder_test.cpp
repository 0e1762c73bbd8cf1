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

ustring wide(std::string const& text) {
    return ustring(text.begin(), text.end());
}

class ResourceFinderTest : public testing::Test {
protected:
    // Files named relative to the scratch directory; their directories are made as needed.
    void make(std::vector<std::string> const& files) {
        for (auto const& file : files) {
            std::filesystem::create_directories(
                std::filesystem::path(dir_.bytes(file)).parent_path());
            std::ofstream(dir_.bytes(file)) << "x";
        }
    }
    std::vector<upath> bases() const { return {upath(dir_.text("b1")), upath(dir_.text("b2"))}; }
    upath at(std::string const& file) const {
        return file.empty() ? upath() : upath(dir_.text(file));
    }
    static boost::shared_ptr<OvLocale> messages(std::string const& name) {
        return OvLocale::createLocale("de_DE", OvLocale::messages, name);
    }

    scratch_directory dir_{"resource_finder"};
};

TEST_F(ResourceFinderTest, TriesEachLocaleOverAllBasesBeforeTheNext) {
    struct {
        char const* what;
        std::vector<std::string> files;
        bool use_default;
        char const* pattern;
        char const* found;
        char const* locale;
    } const cases[] = {
        {"a better locale in a later base wins",
         {"b1/x_de.xml", "b2/x_de_CH.xml"},
         true,
         "x_%S.xml",
         "b2/x_de_CH.xml",
         "de_CH"},
        {"the region is cut",
         {"b2/x_de.xml", "b1/x_en.xml"},
         true,
         "x_%S.xml",
         "b2/x_de.xml",
         "de"},
        {"then the default", {"b1/x_en.xml", "b1/x.xml"}, true, "x_%S.xml", "b1/x_en.xml", "en"},
        {"no default: no locale at all",
         {"b1/x_en.xml", "b2/x.xml"},
         false,
         "x_%S.xml",
         "b2/x.xml",
         ""},
        {"no \"_\" before the place", {"b1/de.xml"}, false, "%S.xml", "b1/de.xml", "de"},
        {"nothing there", {"b1/x_fr.xml"}, true, "x_%S.xml", "", ""},
        {"only the first place is filled", {"b1/de/x_%S"}, true, "%S/x_%S", "b1/de/x_%S", "de"},
        {"no place: nothing, yet a locale", {"b1/x.xml"}, true, "x.xml", "", "de_CH"},
        {"an empty pattern", {}, true, "", "", "de_CH"},
    };
    auto const locale = messages("de_CH");
    for (auto const& c : cases) {
        std::filesystem::remove_all(dir_.bytes("b1"));
        std::filesystem::remove_all(dir_.bytes("b2"));
        make(c.files);
        resource_finder const finder(bases(), *locale, c.use_default, ustring());
        EXPECT_EQ(finder.find(wide(c.pattern)), at(c.found)) << c.what;
        EXPECT_EQ(finder.get_locale(), c.locale) << c.what;
        EXPECT_EQ(finder.get_current_locale(), "de_CH");

        std::string found;
        EXPECT_EQ(resource_finder::find_resource(bases(), wide(c.pattern), found, *locale,
                                                 c.use_default, ustring()),
                  at(c.found))
            << c.what;
        EXPECT_EQ(found, *c.found != '\0' ? c.locale : "") << c.what;
    }
}

TEST_F(ResourceFinderTest, OtherFormattersAndWholePathPatterns) {
    make({"b1/x_de.xml", "b2/y_en.xml"});
    auto const locale = messages("de_CH");
    resource_finder const finder(bases(), *locale, true, u"{L}");
    EXPECT_EQ(finder.find(u"x_{L}.xml"), at("b1/x_de.xml"));
    EXPECT_EQ(finder.find(u"x_%S.xml"), upath());
    EXPECT_EQ(finder.find(u"y_%S.xml", resource_finder::default_formatter), at("b2/y_en.xml"));

    std::string found;
    EXPECT_EQ(resource_finder::find_resource(dir_.text("b2/y_%S.xml"), found, *locale, true, u""),
              at("b2/y_en.xml"));
    EXPECT_EQ(found, "en");
    EXPECT_EQ(resource_finder::find_resource(dir_.text("b1/x_%S.xml"), *locale, false, u""),
              at("b1/x_de.xml"));
}

TEST_F(ResourceFinderTest, SearchForAnotherLocaleAndItsKeptQuirks) {
    make({"b1/x_de.xml", "b2/y_de.xml"});
    resource_finder const finder(bases(), *messages("de_CH"), true, ustring());
    ASSERT_EQ(finder.find(u"x_%S.xml"), at("b1/x_de.xml"));
    ASSERT_EQ(finder.get_locale(), "de");

    // Its own count: the finder's last match stays.
    std::string found;
    EXPECT_EQ(finder.find(u"y_%S.xml", *messages("de_AT"), found), at("b2/y_de.xml"));
    EXPECT_EQ(found, "de");
    EXPECT_EQ(finder.get_locale(), "de");

    // The finder's count goes on from 1 past de_AT to 2, and the answer is the locale asked for.
    EXPECT_EQ(finder.find(u"y_%S.xml", *messages("de_AT"), ustring(), found), at("b2/y_de.xml"));
    EXPECT_EQ(found, "de_AT");
    EXPECT_EQ(finder.get_locale(), "en");

    EXPECT_EQ(finder.find(u"z_%S.xml", *messages("de_AT"), ustring(), found), upath());
    EXPECT_EQ(found, "");
    EXPECT_EQ(finder.get_locale(), "");
}

TEST_F(ResourceFinderTest, BasePathsAreKeptOnceInOrder) {
    make({"b3/x_de.xml"});
    resource_finder const finder({upath(dir_.text("b1"))}, *messages("de_DE"), true, ustring());
    EXPECT_EQ(finder.find(u"x_%S.xml"), upath());
    EXPECT_TRUE(finder.add_base_path(upath(dir_.text("b3"))));
    EXPECT_FALSE(finder.add_base_path(upath(dir_.text("b3"))));
    EXPECT_EQ(finder.find(u"x_%S.xml"), at("b3/x_de.xml"));
    EXPECT_EQ(finder.get_base_path_list(),
              (std::vector<upath>{upath(dir_.text("b1")), upath(dir_.text("b3"))}));
    EXPECT_TRUE(finder.remove_base_path(upath(dir_.text("b1"))));
    EXPECT_FALSE(finder.remove_base_path(upath(dir_.text("b1"))));
    EXPECT_EQ(finder.get_base_path_list(), std::vector<upath>{upath(dir_.text("b3"))});
}

}  // namespace
