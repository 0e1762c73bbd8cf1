#include <fl/filesystem.hpp>

#include <gtest/gtest.h>

#include <string>

#include "filesystem/path_test_support.hpp"

namespace {

namespace fs = fl::filesystem;
using fl::i18n::character_handling_mode_context;
using fl::i18n::ustring;
using fstest::u;

int sign(int value) {
    return (value > 0) - (value < 0);
}

// Without a mode both sides must be absolute; with default_mode the same unit order applies to
// any text. Both forms clean their ustring arguments first.
TEST(PathComparison, WithoutModeNeedsAbsolutePathsAndGivesLengthDifference) {
    struct row {
        char const* a;
        char const* b;
        int without_mode;  // 99: InvalidArgument
        int with_default_mode;
    } const rows[] = {
        {"", "", 0, 0},      {"/a", "/a/", 0, 0},   {"/a//b", "/a/b", 0, 0}, {"/a", "/b", -1, -1},
        {"/ab", "/a", 1, 1}, {"/abcd", "/a", 3, 3}, {"/a", "/abcd", -3, -3}, {"/a", "", 1, 1},
        {"", "/a", -1, -1},  {"a", "/a", 99, 1},    {"/a", "a", 99, -1},     {"", "a", 99, -1},
        {"a", "", 99, 1},
    };
    for (auto const& r : rows) {
        SCOPED_TRACE(std::string(r.a) + " | " + r.b);
        if (r.without_mode == 99) {
            EXPECT_THROW(fs::compare(u(r.a), u(r.b)), fs::InvalidArgument);
        } else {
            EXPECT_EQ(fs::compare(u(r.a), u(r.b)), r.without_mode);
            EXPECT_EQ(fs::compare(fs::upath(u(r.a)), fs::upath(u(r.b))), r.without_mode);
        }
        EXPECT_EQ(sign(fs::compare(u(r.a), u(r.b), character_handling_mode_context::default_mode)),
                  sign(r.with_default_mode));
    }
}

TEST(PathComparison, UnitsCompareUnsigned) {
    EXPECT_EQ(fs::compare(u"/\uFFFF", u"/a"), 1);
    EXPECT_EQ(fs::compare(u"/\uFFFF", u"/a", 0), 1);
}

TEST(PathComparison, ModesDispatchOnExactValue) {
    ustring const precomposed = u"/caf\u00E9";
    ustring const decomposed = u"/cafe\u0301";
    struct row {
        unsigned int mode;
        ustring a;
        ustring b;
        int sign;  // 99: InvalidArgument
    } const rows[] = {
        {0, u"/A", u"/a", -1},
        {1, u"/A", u"/a", 0},
        {1, precomposed, decomposed, 1},
        {2, precomposed, decomposed, 0},
        {6, precomposed, decomposed, 0},
        {4, precomposed, decomposed, 0},
        {2, u"/A\u00E9", u"/ae\u0301", -1},
        {3, u"/A\u00E9", u"/ae\u0301", 0},
        {7, u"/A\u00E9", u"/ae\u0301", 0},
        {8, u"/a", u"/a", 99},
        {9, u"/a", u"/a", 99},
        {10, precomposed, decomposed, 0},
    };
    for (auto const& r : rows) {
        SCOPED_TRACE(r.mode);
        if (r.sign == 99) {
            EXPECT_THROW(fs::compare(r.a, r.b, r.mode), fs::InvalidArgument);
        } else {
            EXPECT_EQ(sign(fs::compare(r.a, r.b, r.mode)), r.sign);
            EXPECT_EQ(sign(fs::compare(fs::upath(r.a), fs::upath(r.b), r.mode)), r.sign);
        }
    }
    // Empty sides are settled before the mode is looked at.
    EXPECT_EQ(fs::compare(u"", u"", 8), 0);
    EXPECT_EQ(fs::compare(u"", u"a", 8), -1);
    EXPECT_EQ(fs::compare(u"a", u"", 8), 1);
}

TEST(PathComparison, EveryVolumeIsExactInCase) {
    EXPECT_THROW(fs::generate_character_handling_mask_from_volume(fs::upath()),
                 fs::InvalidArgument);
    auto const mode = fs::generate_character_handling_mask_from_volume(fs::upath(u"/tmp"));
    EXPECT_EQ(mode.get_mask(), 0u);
}

TEST(PathValidation, ChecksRunInBitOrderWithByteLimits) {
    auto const id = [](unsigned int bits) { return static_cast<fs::validation_id>(bits); };
    character_handling_mode_context const mode(0);
    ustring const element255 = u(std::string(255, 'e'));
    // "/" + 15 elements of 255 + "/" + 254 units gives 4095 bytes.
    ustring path4095;
    for (int i = 0; i < 15; ++i) {
        path4095 += u"/" + element255;
    }
    path4095 += u"/" + u(std::string(254, 'e'));
    ASSERT_EQ(path4095.size(), 4095u);
    struct row {
        ustring path;
        unsigned int bits;
        unsigned int result;
    } const rows[] = {
        {u"", 0xFF, 0},
        {u"/a\tb", 4, 4},
        {u"/a\tb", 0, 0},
        {u"/a\x7F", 4, 4},
        {u"/\u00E9", 0, 1},  // ASCII file system encoding: not representable, even unasked
        {u"/\u00E9\t", 4, 4},
        {path4095, 0x10, 0},
        {path4095 + u"e", 0x10, 0x10},
        {path4095 + u"e", 0x20, 0},
        {u"/" + element255, 0x20, 0},
        {u"/" + element255 + u"e", 0x20, 0x20},
        {u"/" + element255 + u"e/x", 0x20, 0x20},
        {u"/x/" + element255 + u"e", 0x30, 0x20},
        {u"/" + element255 + u"e", 0x10, 0},
    };
    for (auto const& r : rows) {
        SCOPED_TRACE(r.path.size());
        EXPECT_EQ(fs::validate_pathname(r.path, id(r.bits), mode), r.result);
    }
}

}  // namespace
