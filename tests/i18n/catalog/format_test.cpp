#include <fl/i18n/catalog/message_catalog.hpp>

#include <gtest/gtest.h>
#include <unicode/locid.h>

using fl::i18n::MessageCatalog;
using fl::i18n::ustring;

namespace {

ustring format(ustring const& text, MessageCatalog::ArgList const& args) {
    return MessageCatalog::GetFormattedMessage(text, args);
}

TEST(FormatTest, HolesAreFilled) {
    EXPECT_EQ(format(u"plain", {}), u"plain");
    EXPECT_EQ(format(u"{1} before {0}", {std::string("a"), ustring(u"\u00e9")}),
              u"\u00e9 before a");
    EXPECT_EQ(format(u"{0} and {0} again", {7L}), u"7 and 7 again");
    // Named holes take the arguments in the sorted order of their names, not in text order.
    EXPECT_EQ(format(u"{zeta} {alpha} {zeta}", {1L, 2L}), u"2 1 2");
}

TEST(FormatTest, SingleApostropheIsLiteral) {
    EXPECT_EQ(format(u"don't stop {0}", {1L}), u"don't stop 1");
    EXPECT_EQ(format(u"it''s", {}), u"it's");
    EXPECT_EQ(format(u"'{0}' is {0}", {1L}), u"{0} is 1");
}

TEST(FormatTest, HoleCountMismatchNamesArgumentsFirst) {
    try {
        format(u"{0} {1}", {1L});
        FAIL();
    } catch (MessageCatalog::IncorrectHoleCount const& e) {
        EXPECT_STREQ(e.what(), "Incorrect hole count detected. Expected : 1 Found : 2");
    }
    try {
        format(u"{0}", {1L, 2L, 3L});
        FAIL();
    } catch (MessageCatalog::IncorrectHoleCount const& e) {
        EXPECT_STREQ(e.what(), "Incorrect hole count detected. Expected : 3 Found : 1");
    }
}

TEST(FormatTest, BadPatternIsReported) {
    EXPECT_THROW(format(u"{0", {1L}), MessageCatalog::MessageFormatIncorrect);
    EXPECT_THROW(format(u"{0,nosuchtype}", {1L}), MessageCatalog::MessageFormatIncorrect);
}

TEST(FormatTest, NumbersIgnoreTheDefaultLocale) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale const previous = icu::Locale::getDefault();
    icu::Locale::setDefault(icu::Locale("de", "DE"), status);
    // en_US_POSIX groups no digits unless the pattern asks; German would write 1.234.567.
    EXPECT_EQ(format(u"{0} {1,number,#,##0.0} {2,number,percent}", {1234567L, -1234L, 3L}),
              u"1234567 -1,234.0 300%");
    icu::Locale::setDefault(previous, status);
}

}  // namespace
