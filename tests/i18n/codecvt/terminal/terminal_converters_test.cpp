// Run once per scenario: the terminal encoding comes from the global locale, which start-up fixes
// once per process. PROBE_START=1 runs start-up first; EXPECT_TERMINAL_ENCODING names the
// encoding the converters must use (the default setting's "US-ASCII" when unset).
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using fl::i18n::codecvt_string_to_ustring;
using fl::i18n::codecvt_ustring_to_string;
using fl::i18n::ustring;

std::string expected_encoding() {
    char const* value = std::getenv("EXPECT_TERMINAL_ENCODING");
    return value != nullptr ? value : "US-ASCII";
}

// Mixed text: ASCII, a Latin-1 letter, a letter outside Latin-1 and a CJK ideograph, so that
// every tested encoding has at least one character it can't map.
ustring const sample = u"Az\u00fc\u20ac\u65e5";

class TerminalConverters : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (std::getenv("PROBE_START") != nullptr) {
            fl::i18n::initialize();
        }
    }
};

TEST_F(TerminalConverters, OutputMatchesLenientConverterOnExpectedEncoding) {
    codecvt_ustring_to_string const reference(expected_encoding(), true);
    std::string const bytes = reference.do_convert(sample.data(), sample.size());
    auto const to_terminal = fl::i18n::create_codecvt_ustring_to_terminal();
    auto const to_output = fl::i18n::create_codecvt_ustring_to_terminal_output();
    EXPECT_EQ(to_terminal->do_convert(sample.data(), sample.size()), bytes);
    EXPECT_EQ(to_output->do_convert(sample.data(), sample.size()), bytes);
}

TEST_F(TerminalConverters, InputMatchesLenientConverterOnExpectedEncoding) {
    codecvt_ustring_to_string const encoder(expected_encoding(), true);
    codecvt_string_to_ustring const reference(expected_encoding(), true);
    // A stray 0xFF byte is illegal in the multi-byte encodings: lenient decoding substitutes it.
    std::string const bytes = encoder.do_convert(sample.data(), sample.size()) + "\xff" + "b";
    ustring const text = reference.do_convert(bytes.data(), bytes.size());
    ASSERT_FALSE(text.empty());
    auto const from_terminal = fl::i18n::create_codecvt_terminal_to_ustring();
    auto const from_input = fl::i18n::create_codecvt_terminal_input_to_ustring();
    EXPECT_EQ(from_terminal->do_convert(bytes.data(), bytes.size()), text);
    EXPECT_EQ(from_input->do_convert(bytes.data(), bytes.size()), text);
    EXPECT_EQ(text.back(), u'b');
}

TEST_F(TerminalConverters, EveryCallBuildsANewConverter) {
    auto const first = fl::i18n::create_codecvt_ustring_to_terminal();
    auto const second = fl::i18n::create_codecvt_ustring_to_terminal();
    auto const third = fl::i18n::create_codecvt_terminal_to_ustring();
    auto const fourth = fl::i18n::create_codecvt_terminal_to_ustring();
    EXPECT_NE(first.get(), second.get());
    EXPECT_NE(third.get(), fourth.get());
    static_assert(sizeof(first) == sizeof(void*), "the result is one machine word wide");
}

TEST_F(TerminalConverters, EncodingIsTheExpectedOne) {
    // Distinguishes encodings that the sample alone might not, e.g. two single-byte sets.
    auto const value =
        fl::i18n::OvLocale::global().getOptData(fl::i18n::OvLcOptDataCtx::termencoding);
    EXPECT_EQ(boost::get<std::string>(value), expected_encoding());
}

}  // namespace
