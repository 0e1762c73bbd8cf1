#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/codecvt_context.hpp"
#include "i18n/codecvt/thrown_id.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>

namespace {

namespace d = fl::i18n::detail;
using fl::i18n::codecvt_call_back_mode;

TEST(ConversionCore, BoundedFamilyMapsFailuresAndLengths) {
    d::codecvt_context utf8("UTF-8");
    d::codecvt_context ascii("US-ASCII");
    utf8.change_to_call_back(fl::i18n::call_back_stop);
    ascii.change_from_call_back(fl::i18n::call_back_stop, std::string());
    d::converter_use const u{utf8.get(), false};
    d::converter_use const a{ascii.get(), false};
    char16_t units[8];
    std::size_t const too_large = std::size_t(0x7FFFFFFF) + 1;
    auto const& bounded = d::bounded_conversion_errors;
    struct Case {
        char const* what;
        std::function<void()> call;
        int expected;
    };
    Case const cases[] = {
        {"illegal byte", [&] { d::to_ustring(u, "a\xFF", 2, bounded); }, 5},
        {"truncated sequence", [&] { d::to_ustring(u, "a\xE2\x82", 3, bounded); }, 7},
        {"unmappable character", [&] { d::from_ustring(a, u"\u00E9", 1, bounded); }, 5},
        {"source too large", [&] { d::to_ustring_into(u, units, 8, "", too_large, bounded); }, 6},
        {"capacity too large", [&] { d::to_ustring_into(u, units, too_large, "", 0, bounded); }, 6},
        {"units too large", [&] { d::from_ustring(a, u"", 0x40000000, bounded); }, 6},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(thrown_id(c.call), c.expected) << c.what;
    }
}

// What a conversion gives, or the id of what it throws.
template <class F>
std::string outcome(F&& convert) {
    std::string result;
    int const id = thrown_id([&] {
        auto const text = convert();
        result.assign(reinterpret_cast<char const*>(text.data()), text.size() * sizeof(text[0]));
    });
    return id == 0 ? result : "thrown " + std::to_string(id);
}

// Copying ASCII past ICU must give what ICU gives, whatever the run's length and alignment and
// whatever the call-back makes of the bad element behind it; the measuring and buffer forms
// must agree with the whole conversion.
TEST(ConversionCore, AsciiRunsMatchIcuBeforeABadElement) {
    struct Mode {
        char const* encoding;
        codecvt_call_back_mode mode;
    };
    Mode const modes[] = {
        {"UTF-8", fl::i18n::call_back_default},
        {"UTF-8", fl::i18n::call_back_stop},
        {"ISO-8859-1", fl::i18n::call_back_default},
        {"ISO-8859-1", fl::i18n::call_back_stop},
        {"US-ASCII", fl::i18n::call_back_escape_xml_dec},
        {"windows-1252", fl::i18n::call_back_escape_java},
    };
    std::string const bad_bytes[] = {"\xFF", "\xE2\x82", "\xC3\xA9"};
    std::u16string const bad_units[] = {u"\xD800", u"\u20AC", u"\U0001D11E"};
    for (Mode const& m : modes) {
        d::codecvt_context context(m.encoding);
        ASSERT_TRUE(context.use().ascii_transparent) << m.encoding;
        if (m.mode != fl::i18n::call_back_escape_xml_dec &&
            m.mode != fl::i18n::call_back_escape_java) {
            context.change_to_call_back(m.mode);
        }
        context.change_from_call_back(m.mode, std::string());
        d::converter_use const fast = context.use();
        d::converter_use const icu{context.get(), false};
        auto const& family = d::conversion_errors;
        for (std::size_t length = 0; length <= 70; ++length) {
            for (std::size_t align = 0; align < 16; ++align) {
                for (std::size_t b = 0; b < 3; ++b) {
                    SCOPED_TRACE(testing::Message()
                                 << m.encoding << " mode " << m.mode << " length " << length
                                 << " align " << align << " bad " << b);
                    std::string const bytes =
                        std::string(align, 'p') + std::string(length, 'a') + bad_bytes[b] + "z";
                    std::u16string const units = std::u16string(align, u'p') +
                                                 std::u16string(length, u'a') + bad_units[b] + u"z";
                    char const* const bs = bytes.data() + align;
                    char16_t const* const us = units.data() + align;
                    std::size_t const bn = bytes.size() - align;
                    std::size_t const un = units.size() - align;
                    std::string const decoded =
                        outcome([&] { return d::to_ustring(icu, bs, bn, family); });
                    std::string const encoded =
                        outcome([&] { return d::from_ustring(icu, us, un, family); });
                    ASSERT_EQ(outcome([&] { return d::to_ustring(fast, bs, bn, family); }),
                              decoded);
                    ASSERT_EQ(outcome([&] { return d::from_ustring(fast, us, un, family); }),
                              encoded);
                    if (encoded.rfind("thrown", 0) != 0) {
                        char small[7];
                        std::size_t const needed =
                            d::from_ustring_into(fast, small, sizeof small, us, un, family);
                        ASSERT_EQ(needed, encoded.size());
                        ASSERT_EQ(std::string(small, std::min(needed, sizeof small)),
                                  encoded.substr(0, sizeof small));
                    }
                }
            }
        }
    }
}

}  // namespace
