// Run once per scenario, since start-up fixes the terminal encoding once per process.
// PROBE_START=1 runs start-up first; EXPECT_TERMINAL_ENCODING names the encoding the converters
// must use ("US-ASCII", the default setting's, when unset).
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/lcmgmt.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace {

using fl::i18n::ustring;

std::string expected_encoding() {
    char const* value = std::getenv("EXPECT_TERMINAL_ENCODING");
    return value != nullptr ? value : "US-ASCII";
}

TEST(TerminalConverters, ActLikeLenientConvertersOnTheTerminalEncoding) {
    if (std::getenv("PROBE_START") != nullptr) {
        fl::i18n::initialize();
    }
    // Every tested encoding lacks at least one of these characters, and 0xFF is illegal in the
    // multi-byte ones: a strict converter would throw on either.
    ustring const sample = u"Az\u00fc\u20ac\u65e5";
    fl::i18n::codecvt_ustring_to_string const encoder(expected_encoding(), true);
    fl::i18n::codecvt_string_to_ustring const decoder(expected_encoding(), true);
    std::string const bytes = encoder.do_convert(sample.data(), sample.size());
    std::string const input = bytes + "\xff" + "b";
    ustring const text = decoder.do_convert(input.data(), input.size());

    std::unique_ptr<fl::i18n::converter<char, char16_t>> const outputs[] = {
        fl::i18n::create_codecvt_ustring_to_terminal(),
        fl::i18n::create_codecvt_ustring_to_terminal_output()};
    for (auto const& to : outputs) {
        EXPECT_EQ(to->do_convert(sample.data(), sample.size()), bytes);
    }
    std::unique_ptr<fl::i18n::converter<char16_t, char>> const inputs[] = {
        fl::i18n::create_codecvt_terminal_to_ustring(),
        fl::i18n::create_codecvt_terminal_input_to_ustring()};
    for (auto const& from : inputs) {
        EXPECT_EQ(from->do_convert(input.data(), input.size()), text);
    }
}

}  // namespace
