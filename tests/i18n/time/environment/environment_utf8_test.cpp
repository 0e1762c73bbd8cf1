#include <fl/i18n/lcmgmt.hpp>
#include <fl/i18n/time/environment.hpp>
#include <fl/i18n/time/module_path.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

// Runs in a UTF-8 locale, started before any conversion so that UTF-8 becomes the default
// encoding of the process.
namespace {

using fl::i18n::ustring;

char const* const variable = "OVI18N_ENV_UTF8_VARIABLE";

class EnvironmentUtf8 : public ::testing::Test {
protected:
    static void SetUpTestSuite() { fl::i18n::initialize(); }
    void TearDown() override { ::unsetenv(variable); }
};

TEST_F(EnvironmentUtf8, DefaultEncodingIsUtf8) {
    ASSERT_EQ(fl::i18n::OvLocale::global().getEncoding(), "UTF-8");
}

TEST_F(EnvironmentUtf8, ValuesTravelAsUtf8Bytes) {
    std::string euros;
    while (euros.size() < 3000) {
        euros += "\xE2\x82\xAC";
    }
    struct Case {
        ustring text;
        std::string bytes;
    };
    Case const cases[] = {
        {u"Gr\u00FC\u00DFe",
         "Gr\xC3\xBC\xC3\x9F"
         "e"},
        {u"\u65E5\u672C\u8A9E", "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E"},
        {u"\U0001D11E clef", "\xF0\x9D\x84\x9E clef"},
        // 1000 three-byte characters: the bytes outgrow the first buffer.
        {ustring(1000, u'\u20AC'), euros},
    };
    for (Case const& c : cases) {
        ASSERT_EQ(fl::i18n::setenv(variable, c.text, 1, false), 0);
        EXPECT_EQ(std::string(std::getenv(variable)), c.bytes);
        EXPECT_EQ(fl::i18n::getenv(variable), c.text);
    }
}

TEST_F(EnvironmentUtf8, InheritedValueIsDecoded) {
    EXPECT_EQ(fl::i18n::getenv("OVI18N_PRESET_VALUE"), u"Gr\u00FC\u00DFe \u2211 \U0001D11E");
}

TEST_F(EnvironmentUtf8, MalformedBytesAreReplacedNotRefused) {
    ::setenv(variable, "a\xC3(b", 1);
    EXPECT_EQ(fl::i18n::getenv(variable), u"a\uFFFD(b");
}

}  // namespace
