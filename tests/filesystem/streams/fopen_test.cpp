#include <fl/filesystem/basic_ifstream.hpp>
#include <fl/filesystem/stream_opening.hpp>
#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>

#include "filesystem/temp_directory_fixture.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace {

using fl::filesystem::upath;
using fl::i18n::ustring;

struct file_closer {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using unique_file = std::unique_ptr<std::FILE, file_closer>;

class Fopen : public fstest::temp_directory_test {
protected:
    Fopen() {
        write_file("file", "content");
        std::filesystem::create_directory(bytes("dir"));
    }
};

// Text is cleaned and refused early; a native path reaches the system in its native form.
TEST_F(Fopen, RefusalsAndSystemFailures) {
    struct Case {
        char const* what;
        bool native;
        ustring path;
        std::string mode;
        int error;  // 0: opens
    };
    Case const cases[] = {
        {"empty path", false, u"", "r", EINVAL},
        {"leading NUL", false, ustring(1, u'\0') + at("file"), "r", EINVAL},
        {"empty mode on a good path", false, at("file"), "", EINVAL},
        {"trailing separator on a file", false, at("file") + u"/", "r", EISDIR},
        {"root", false, u"/", "r", EISDIR},
        {"missing file", false, at("missing"), "r", ENOENT},
        {"missing directory", false, at("missing/file"), "w", ENOENT},
        {"directory for writing", false, at("dir"), "w", EISDIR},
        {"native empty path", true, u"", "r", EINVAL},
        {"native empty mode", true, at("file"), "", EINVAL},
        // The separator is gone in native form, so the directory itself reaches the system.
        {"native directory read", true, at("dir") + u"/", "r", 0},
        {"native directory written", true, at("dir") + u"/", "w", EISDIR},
        {"native file", true, at("file"), "r", 0},
    };
    for (Case const& c : cases) {
        errno = 12345;
        unique_file const file(c.native ? fl::filesystem::fopen(upath(c.path), c.mode)
                                        : fl::filesystem::fopen(c.path, c.mode));
        EXPECT_EQ(file != nullptr, c.error == 0) << c.what;
        if (c.error != 0) {
            EXPECT_EQ(errno, c.error) << c.what;
        }
    }
}

using recording_converter = fstest::recording_converter<char, char16_t>;

TEST_F(Fopen, CallersConverterMakesTheBytes) {
    std::string const saved = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
    ::setenv("HOME", "/home/someone", 1);
    for (bool const native : {false, true}) {
        recording_converter const cvt(bytes("file"));
        unique_file const file(native ? fl::filesystem::fopen(upath(u"~//x"), "r", cvt)
                                      : fl::filesystem::fopen(ustring(u"~//x"), "r", cvt));
        EXPECT_NE(file, nullptr) << native;
        EXPECT_EQ(cvt.seen, u"/home/someone/x") << native;
    }
    ::setenv("HOME", saved.c_str(), 1);

    recording_converter const unused("x");
    EXPECT_EQ(fl::filesystem::fopen(ustring(u"dir/"), "r", unused), nullptr);
    EXPECT_EQ(fl::filesystem::fopen(ustring(u"x"), "", unused), nullptr);
    EXPECT_EQ(unused.calls, 0);
}

TEST_F(Fopen, ConversionFailuresPassToTheCaller) {
    fl::i18n::codecvt_ustring_to_string const strict_ascii("US-ASCII", false);
    ustring const name = at("caf\u00E9");
    EXPECT_THROW(fl::filesystem::fopen(name, "w", strict_ascii), fl::i18n::CvtInvalidCharacter);
    EXPECT_THROW(fl::filesystem::fopen(upath(name), "w", strict_ascii),
                 fl::i18n::CvtInvalidCharacter);
}

TEST_F(Fopen, FreopenKeepsTheStreamOnEarlyFailures) {
    write_file("other", "other content");
    std::FILE* const stream = std::fopen(bytes("file").c_str(), "r");
    ASSERT_NE(stream, nullptr);

    errno = 0;
    EXPECT_EQ(fl::filesystem::freopen(ustring(u"x"), "r", nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    EXPECT_EQ(fl::filesystem::freopen(upath(u"x"), "r", nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);

    for (ustring const& refused : {ustring(), at("dir") + u"/"}) {
        EXPECT_EQ(fl::filesystem::freopen(refused, "r", stream), nullptr);
        EXPECT_NE(errno, 0);
    }
    EXPECT_EQ(std::fgetc(stream), 'c');  // still open, still the first file

    EXPECT_EQ(fl::filesystem::freopen(at("other"), "r", stream), stream);
    EXPECT_EQ(fstest::read_all(stream), "other content");
    EXPECT_EQ(fl::filesystem::freopen(upath(at("file")), "r", stream), stream);
    EXPECT_EQ(fstest::read_all(stream), "content");
    std::fclose(stream);
}

TEST_F(Fopen, InputStreamOpensThroughThePath) {
    write_file("lines", "first\nsecond\n");
    struct Case {
        char const* what;
        std::function<void(fl::filesystem::ifstream&)> open;
        bool opens;
    };
    Case const cases[] = {
        {"upath", [&](auto& in) { in.open(upath(at("lines"))); }, true},
        {"text with doubled separator", [&](auto& in) { in.open(at("") + u"/lines"); }, true},
        {"access form", [&](auto& in) { in.open(bytes("lines")); }, true},
        {"missing file", [&](auto& in) { in.open(at("missing")); }, false},
    };
    for (Case const& c : cases) {
        fl::filesystem::ifstream in;
        c.open(in);
        EXPECT_EQ(in.is_open(), c.opens) << c.what;
        std::string line;
        EXPECT_EQ(static_cast<bool>(std::getline(in, line)), c.opens) << c.what;
        if (c.opens) {
            EXPECT_EQ(line, "first") << c.what;
        }
    }
    fl::filesystem::ifstream constructed(upath(at("lines")));
    std::string first, second;
    constructed >> first >> second;
    EXPECT_EQ(second, "second");
}

}  // namespace
