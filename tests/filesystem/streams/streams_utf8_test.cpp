#include <fl/filesystem/basic_ifstream.hpp>
#include <fl/filesystem/stream_opening.hpp>
#include <fl/filesystem/temporary_files.hpp>

#include "filesystem/temp_directory_fixture.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

// Part of utf8_file_names_test, whose start-up in a UTF-8 locale makes file names UTF-8 bytes.
namespace {

using fl::filesystem::upath;
using fl::i18n::ustring;

// "Grüße-日本.txt" as text and as the bytes on disk.
ustring const name_text = u"Gr\u00FC\u00DFe-\u65E5\u672C.txt";
std::string const name_bytes =
    "Gr\xC3\xBC\xC3\x9F"
    "e-\xE6\x97\xA5\xE6\x9C\xAC.txt";

class StreamsUtf8 : public fstest::temp_directory_test {};

TEST_F(StreamsUtf8, InputStreamReadsANonAsciiName) {
    write_file(name_bytes, "erste Zeile\nzweite\n");
    fl::filesystem::ifstream by_path(upath(at("") + name_text));
    ASSERT_TRUE(by_path.is_open());
    std::string line;
    ASSERT_TRUE(std::getline(by_path, line));
    EXPECT_EQ(line, "erste Zeile");

    fl::filesystem::ifstream by_text(at("") + u"/" + name_text);
    ASSERT_TRUE(std::getline(by_text, line));
    EXPECT_EQ(line, "erste Zeile");
}

TEST_F(StreamsUtf8, TemporaryNamesKeepNonAsciiParts) {
    std::string const directory_bytes = bytes("\xD0\xB2\xD1\x80\xD0\xB5\xD0\xBC\xD1\x8F");
    ustring const directory = fstest::u(root_) + u"/\u0432\u0440\u0435\u043C\u044F";
    std::filesystem::create_directory(directory_bytes);

    ::setenv("TMPDIR", directory_bytes.c_str(), 1);
    EXPECT_EQ(fl::filesystem::temp_directory_name(), directory);

    ustring name;
    std::FILE* const file = fl::filesystem::tmpfile(name, u"", u"\u00E9t\u00E9-", u"\u00FC");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_EQ(name.compare(0, directory.size() + 5, directory + u"/\u00E9t\u00E9-"), 0);
    EXPECT_EQ(name.substr(name.size() - 2), u".\u00FC");
    std::filesystem::directory_iterator const entries(directory_bytes);
    ASSERT_NE(entries, std::filesystem::directory_iterator());
    std::string const on_disk = entries->path().filename().string();
    EXPECT_EQ(on_disk.rfind("\xC3\xA9t\xC3\xA9-", 0), 0u) << on_disk;
}

}  // namespace
