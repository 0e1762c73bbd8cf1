#include <fl/filesystem/basic_ifstream.hpp>
#include <fl/filesystem/stream_opening.hpp>
#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>

#include "filesystem/streams/scratch_directory.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
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

class Fopen : public ::testing::Test {
protected:
    Fopen() : scratch_("fopen") {
        scratch_.write("file", "content");
        std::filesystem::create_directory(scratch_.bytes("dir"));
    }
    scratch_directory scratch_;
};

TEST_F(Fopen, RefusalsAndSystemFailuresOnText) {
    struct Case {
        char const* what;
        ustring path;
        std::string mode;
        int error;
    };
    Case const cases[] = {
        {"empty path", u"", "r", EINVAL},
        {"leading NUL", ustring(1, u'\0') + scratch_.text("file"), "r", EINVAL},
        {"empty mode on a good path", scratch_.text("file"), "", EINVAL},
        {"trailing separator", scratch_.text("dir") + u"/", "r", EISDIR},
        {"trailing separator on a file", scratch_.text("file") + u"/", "r", EISDIR},
        {"root", u"/", "r", EISDIR},
        {"missing file", scratch_.text("missing"), "r", ENOENT},
        {"missing directory", scratch_.text("missing/file"), "w", ENOENT},
        {"directory for writing", scratch_.text("dir"), "w", EISDIR},
    };
    for (Case const& c : cases) {
        errno = 12345;
        unique_file const file(fl::filesystem::fopen(c.path, c.mode));
        EXPECT_EQ(file, nullptr) << c.what;
        EXPECT_EQ(errno, c.error) << c.what;
    }
}

TEST_F(Fopen, NativePathsGoAsTheyStand) {
    struct Case {
        char const* what;
        upath path;
        std::string mode;
        bool opens;
        int error;
    };
    Case const cases[] = {
        {"empty path", upath(), "r", false, EINVAL},
        {"empty mode", upath(scratch_.text("file")), "", false, EINVAL},
        // The separator is gone in native form, so the directory itself reaches the system.
        {"directory read", upath(scratch_.text("dir") + u"/"), "r", true, 0},
        {"directory written", upath(scratch_.text("dir") + u"/"), "w", false, EISDIR},
        {"root written", upath(u"/"), "w", false, EISDIR},
        {"file", upath(scratch_.text("file")), "r", true, 0},
    };
    for (Case const& c : cases) {
        unique_file const file(fl::filesystem::fopen(c.path, c.mode));
        EXPECT_EQ(file != nullptr, c.opens) << c.what;
        if (!c.opens) {
            EXPECT_EQ(errno, c.error) << c.what;
        }
    }
}

// Records the text it is given and answers with a fixed name.
class recording_converter : public fl::i18n::converter<char, char16_t> {
public:
    explicit recording_converter(std::string answer) : answer_(std::move(answer)) {}
    std::size_t do_get_destination_size(char16_t const*, std::size_t) const override {
        return answer_.size();
    }
    std::string do_convert(char16_t const* source, std::size_t size) const override {
        seen.assign(source, size);
        ++calls;
        return answer_;
    }
    std::size_t do_convert(char*, std::size_t, char16_t const*, std::size_t) const override {
        return answer_.size();
    }
    mutable ustring seen;
    mutable int calls = 0;

private:
    std::string answer_;
};

TEST_F(Fopen, CallersConverterMakesTheBytes) {
    std::string const saved = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
    ::setenv("HOME", "/home/someone", 1);
    struct Case {
        char const* what;
        bool native;
        ustring text;
        ustring seen;
    };
    Case const cases[] = {
        {"text cleaned", false, u"a//b", u"a/b"},
        {"text with tilde", false, u"~/x", u"/home/someone/x"},
        {"native path", true, u"~/x", u"/home/someone/x"},
        {"native path without tilde", true, u"a//b", u"a/b"},
    };
    for (Case const& c : cases) {
        recording_converter const cvt(scratch_.bytes("file"));
        unique_file const file(c.native ? fl::filesystem::fopen(upath(c.text), "r", cvt)
                                        : fl::filesystem::fopen(c.text, "r", cvt));
        EXPECT_NE(file, nullptr) << c.what;
        EXPECT_EQ(cvt.seen, c.seen) << c.what;
    }
    ::setenv("HOME", saved.c_str(), 1);

    recording_converter const unused("x");
    EXPECT_EQ(fl::filesystem::fopen(ustring(u"dir/"), "r", unused), nullptr);
    EXPECT_EQ(fl::filesystem::fopen(ustring(u"x"), "", unused), nullptr);
    EXPECT_EQ(unused.calls, 0);
}

TEST_F(Fopen, ConversionFailuresPassToTheCaller) {
    fl::i18n::codecvt_ustring_to_string const strict_ascii("US-ASCII", false);
    ustring const name = scratch_.text("caf\u00E9");
    EXPECT_THROW(fl::filesystem::fopen(name, "w", strict_ascii), fl::i18n::CvtInvalidCharacter);
    EXPECT_THROW(fl::filesystem::fopen(upath(name), "w", strict_ascii),
                 fl::i18n::CvtInvalidCharacter);
}

TEST_F(Fopen, FreopenKeepsTheStreamOnEarlyFailures) {
    scratch_.write("other", "other content");
    std::FILE* const stream = std::fopen(scratch_.bytes("file").c_str(), "r");
    ASSERT_NE(stream, nullptr);

    errno = 0;
    EXPECT_EQ(fl::filesystem::freopen(ustring(u"x"), "r", nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    EXPECT_EQ(fl::filesystem::freopen(upath(u"x"), "r", nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);

    for (ustring const& refused : {ustring(), scratch_.text("dir") + u"/"}) {
        EXPECT_EQ(fl::filesystem::freopen(refused, "r", stream), nullptr);
        EXPECT_NE(errno, 0);
    }
    EXPECT_EQ(std::fgetc(stream), 'c');  // still open, still the first file

    EXPECT_EQ(fl::filesystem::freopen(scratch_.text("other"), "r", stream), stream);
    EXPECT_EQ(read_all(stream), "other content");
    EXPECT_EQ(fl::filesystem::freopen(upath(scratch_.text("file")), "r", stream), stream);
    EXPECT_EQ(read_all(stream), "content");
    std::fclose(stream);
}

TEST_F(Fopen, InputStreamOpensThroughThePath) {
    scratch_.write("lines", "first\nsecond\n");
    struct Case {
        char const* what;
        std::function<void(fl::filesystem::ifstream&)> open;
        bool opens;
    };
    Case const cases[] = {
        {"upath", [&](auto& in) { in.open(upath(scratch_.text("lines"))); }, true},
        {"text with doubled separator", [&](auto& in) { in.open(scratch_.text() + u"//lines"); },
         true},
        {"access form", [&](auto& in) { in.open(scratch_.bytes("lines")); }, true},
        {"missing file", [&](auto& in) { in.open(scratch_.text("missing")); }, false},
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
    fl::filesystem::ifstream constructed(upath(scratch_.text("lines")));
    std::string first, second;
    constructed >> first >> second;
    EXPECT_EQ(second, "second");
}

}  // namespace
