#include <fl/filesystem.hpp>

#include <fl/filesystem/filename_conversion.hpp>
#include "common/unique_converter.hpp"
#include "support/expect_thrown.hpp"

#include <gtest/gtest.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <boost/numeric/conversion/converter_policies.hpp>

#include <string>

namespace {

namespace fs = fl::filesystem;
namespace d = fl::filesystem::detail;
using fl::i18n::ustring;

// The drivers take any converter; UTF-8 shows the multi-byte cases that the default encoding
// before start-up (US-ASCII) can't.
class FileNameDrivers : public ::testing::Test {
protected:
    void SetUp() override {
        UErrorCode status = U_ZERO_ERROR;
        utf8_.reset(ucnv_open("UTF-8", &status));
        ASSERT_LE(status, U_ZERO_ERROR);
    }

    void make_strict() {
        UErrorCode status = U_ZERO_ERROR;
        ucnv_setFromUCallBack(utf8_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                              &status);
        ucnv_setToUCallBack(utf8_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                            &status);
        ASSERT_LE(status, U_ZERO_ERROR);
    }

    fl::i18n::detail::unique_converter utf8_;
};

// The sizes offered to each fill are tested with the estimating driver itself.
TEST_F(FileNameDrivers, EveryBufferRoadGivesTheWholeResult) {
    struct row {
        char const* reason;
        ustring unit;
        std::string bytes;
        std::size_t count;
    } const rows[] = {
        {"empty", u"a", "a", 0},
        {"short source, long result: exact second pass", u"\u00e9", "\xC3\xA9", 1000},
        {"large CJK source", u"\u4e2d", "\xE4\xB8\xAD", 20000},
        {"supplementary characters", u"\U0001F600", "\xF0\x9F\x98\x80", 700},
    };
    for (auto const& r : rows) {
        ustring text;
        std::string bytes;
        for (std::size_t i = 0; i < r.count; ++i) {
            text += r.unit;
            bytes += r.bytes;
        }
        EXPECT_EQ(d::path_to_bytes(utf8_.get(), text.data(), text.size()), bytes) << r.reason;
        EXPECT_EQ(d::bytes_to_path(utf8_.get(), bytes.data(), bytes.size()), text) << r.reason;
    }
}

TEST_F(FileNameDrivers, RawConversionReportsTheLengthNeeded) {
    char small[2];
    EXPECT_EQ(d::convert_path_to_bytes(utf8_.get(), small, sizeof small, u"\u4e2d\u4e2d", 2), 6u);
    EXPECT_EQ(d::convert_path_to_bytes(utf8_.get(), nullptr, 0, u"abc", 3), 3u);
    char16_t unit[1];
    EXPECT_EQ(d::convert_bytes_to_path(utf8_.get(), unit, 1, "xyz", 3), 3u);
    EXPECT_EQ(unit[0], u'x');
}

TEST_F(FileNameDrivers, IllegalBytesBecomeReplacementAndDoNotRoundTrip) {
    ustring const text = d::bytes_to_path(utf8_.get(), "a\xFF", 2);
    EXPECT_EQ(text, u"a\uFFFD");
    EXPECT_EQ(d::path_to_bytes(utf8_.get(), text.data(), text.size()), "a\xEF\xBF\xBD");
}

TEST_F(FileNameDrivers, StrictFailuresMapToTheFilesystemFamily) {
    make_strict();
    char16_t const lone_surrogate[] = {u'a', 0xD800, u'b'};
    EXPECT_THROW(d::path_to_bytes(utf8_.get(), lone_surrogate, 3), fs::CvtInvalidCharacter);
    // A lead surrogate at the very end is a character cut off, not an illegal one.
    EXPECT_THROW(d::path_to_bytes(utf8_.get(), u"a\xD800", 2), fs::FileNameConversionFailure);
    EXPECT_THROW(d::bytes_to_path(utf8_.get(), "a\xFF", 2), fs::CvtInvalidCharacter);
    expect_thrown<fs::FileNameConversionFailure>(
        [&] { d::bytes_to_path(utf8_.get(), "a\xE4\xB8", 3); },
        [](auto const& e) {
            EXPECT_EQ(e.get_cvt_excp_id(), fl::i18n::codecvt_conversion_failure);
            EXPECT_TRUE(e.get_pathname().empty());
        });
}

TEST_F(FileNameDrivers, LengthsBeyondThirtyTwoBitsAreRefusedBeforeIcu) {
    char16_t const units[1] = {u'a'};
    char bytes[1];
    EXPECT_THROW(d::convert_path_to_bytes(utf8_.get(), bytes, 1, units, 0x80000000UL),
                 boost::numeric::positive_overflow);
    EXPECT_THROW(d::convert_bytes_to_path(utf8_.get(), nullptr, 0x80000000UL, "a", 1),
                 boost::numeric::positive_overflow);
}

// Before start-up the default encoding is US-ASCII: enough to tell lenient from strict. The
// narrow pair is the same logic under its own class names.
TEST(FileNameConverters, LenientSubstitutesStrictThrows) {
    fs::codecvt_ustring_to_filesystem const lenient_out(true);
    fs::codecvt_ustring_to_narrow_string const strict_out(false);
    fs::codecvt_narrow_string_to_ustring const lenient_in(true);
    fs::codecvt_filesystem_to_ustring const strict_in(false);

    std::string const substituted = lenient_out.do_convert(u"a\u00e9", 2);
    ASSERT_EQ(substituted.size(), 2u);
    EXPECT_NE(static_cast<unsigned char>(substituted[1]), 0xE9);
    EXPECT_THROW(strict_out.do_convert(u"a\u00e9", 2), fs::CvtInvalidCharacter);
    EXPECT_THROW(strict_out.do_get_destination_size(u"a\u00e9", 2), fs::CvtInvalidCharacter);
    EXPECT_EQ(lenient_in.do_convert("a\xE9", 2).size(), 2u);
    EXPECT_THROW(strict_in.do_convert("a\xE9", 2), fs::CvtInvalidCharacter);

    EXPECT_EQ(strict_in.do_convert("", 0), u"");
    char prefix[1];
    EXPECT_EQ(strict_out.do_convert(prefix, 1, u"abc", 3), 3u);
    EXPECT_EQ(prefix[0], 'a');
    char16_t unit_prefix[2];
    EXPECT_EQ(strict_in.do_convert(unit_prefix, 2, "abc", 3), 3u);
    EXPECT_EQ(ustring(unit_prefix, 2), u"ab");
}

}  // namespace
