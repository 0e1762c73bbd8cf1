#include "i18n/time/one_shot_conversion.hpp"

#include "i18n/codecvt/thrown_id.hpp"
#include "i18n/codecvt/unique_converter.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>

namespace {

using fl::i18n::detail::from_unicode_once;
using fl::i18n::detail::to_unicode_once;
using fl::i18n::detail::unique_converter;

// A strict converter, so that bad input reaches the error translation.
unique_converter strict(char const* encoding) {
    UErrorCode error = U_ZERO_ERROR;
    unique_converter converter(ucnv_open(encoding, &error));
    EXPECT_LE(error, U_ZERO_ERROR);
    error = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                          &error);
    EXPECT_LE(error, U_ZERO_ERROR);
    return converter;
}

TEST(OneShotConversion, FailuresMapToTheConversionExceptions) {
    unique_converter const utf8 = strict("UTF-8");
    unique_converter const ascii = strict("US-ASCII");
    char16_t units[8];
    char bytes[8];
    std::string const illegal = "a\xFF";
    std::string const truncated = "a\xE2\x82";
    std::u16string const beyond_ascii = u"\u00E9";
    char16_t const* const any_units = u"";
    char const* const any_bytes = "";
    std::size_t const too_large = std::size_t(0x7FFFFFFF) + 1;

    struct Case {
        char const* what;
        std::function<void()> call;
        int expected;
    };
    Case const cases[] = {
        {"illegal byte", [&] { to_unicode_once(utf8.get(), units, 8, illegal.data(), 2); }, 5},
        {"truncated sequence", [&] { to_unicode_once(utf8.get(), units, 8, truncated.data(), 3); },
         7},
        {"unmappable character",
         [&] { from_unicode_once(ascii.get(), bytes, 8, beyond_ascii.data(), 1); }, 5},
        {"source too large", [&] { to_unicode_once(utf8.get(), units, 8, any_bytes, too_large); },
         6},
        {"capacity too large", [&] { to_unicode_once(utf8.get(), units, too_large, any_bytes, 0); },
         6},
        {"units too large", [&] { from_unicode_once(utf8.get(), bytes, 8, any_units, too_large); },
         6},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(thrown_id(c.call), c.expected) << c.what;
    }
}

}  // namespace
