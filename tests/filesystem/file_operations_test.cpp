#include <fl/filesystem.hpp>

#include <gtest/gtest.h>
#include <boost/date_time/posix_time/posix_time.hpp>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "filesystem/temp_directory_fixture.hpp"
#include "support/expect_thrown.hpp"

namespace {

namespace fs = fl::filesystem;
namespace sfs = std::filesystem;
using fl::i18n::ustring;
using fs::file_status;
using fs::upath;
using fstest::u;

class FileOperations : public fstest::temp_directory_test {};

TEST_F(FileOperations, EmptyPathsAskNothing) {
    EXPECT_FALSE(fs::exists(ustring()));
    EXPECT_FALSE(fs::exists(upath()));
    EXPECT_EQ(fs::status(ustring()).type(), file_status::file_not_found);
    EXPECT_EQ(fs::symlink_status(upath()).permissions(), file_status::no_perms);
    EXPECT_EQ(fs::status_express_light(ustring()).type(), file_status::file_not_found);
    EXPECT_NO_THROW(fs::remove(ustring()));
    EXPECT_NO_THROW(fs::remove_all(upath()));
    EXPECT_NO_THROW(fs::rename(ustring(), at("x")));
    EXPECT_NO_THROW(fs::create_directory(ustring()));
    EXPECT_NO_THROW(fs::create_directories(upath()));
    EXPECT_TRUE(fs::read_symlink(ustring()).empty());
    EXPECT_FALSE(fs::equivalent(ustring(), at("")));
}

TEST_F(FileOperations, StatusOfEachKindOfEntry) {
    write_file("file", "12345");
    sfs::create_directory(bytes("dir"));
    sfs::create_symlink("file", bytes("link"));
    sfs::create_symlink("missing", bytes("dangling"));
    ASSERT_EQ(::mkfifo(bytes("fifo").c_str(), 0600), 0);
    struct row {
        char const* name;
        bool exists;
        unsigned int type;
        unsigned int link_type;
    } const rows[] = {
        {"file", true, file_status::regular_file, file_status::regular_file},
        {"dir", true, file_status::directory_file, file_status::directory_file},
        {"link", true, file_status::regular_file, file_status::symlink_file},
        {"dangling", false, file_status::file_not_found, file_status::symlink_file},
        {"fifo", true, file_status::fifo_file, file_status::fifo_file},
        {"absent", false, file_status::file_not_found, file_status::file_not_found},
    };
    for (auto const& r : rows) {
        EXPECT_EQ(fs::exists(at(r.name)), r.exists) << r.name;
        EXPECT_EQ(fs::exists(upath(at(r.name))), r.exists) << r.name;
        EXPECT_EQ(fs::status(at(r.name)).type(), r.type) << r.name;
        EXPECT_EQ(fs::status(upath(at(r.name))).type(), r.type) << r.name;
        EXPECT_EQ(fs::symlink_status(at(r.name)).type(), r.link_type) << r.name;
        EXPECT_EQ(fs::status_express_light(at(r.name)).type(), r.type) << r.name;
    }
    ::chmod(bytes("file").c_str(), 0640);
    file_status const s = fs::status(at("file"));
    EXPECT_EQ(s.permissions(), 0640u);
    EXPECT_EQ(s.size(), 5u);
    EXPECT_FALSE(s.last_write_time().is_special());
    EXPECT_EQ(fs::status_express_light(at("file")).size(), 5u);
    // A ustring is cleaned first: doubled and trailing separators don't matter.
    EXPECT_EQ(fs::status(u(root_ + "//dir/")).type(), file_status::directory_file);
}

struct failure {
    char const* label;
    std::function<void()> call;
    fs::fsys_excp_id id;
    ustring pathname;
};

void expect_failures(std::vector<failure> const& failures) {
    for (auto const& f : failures) {
        SCOPED_TRACE(f.label);
        expect_thrown<fs::FsysExceptionBase>(f.call, [&](auto const& e) {
            EXPECT_EQ(e.get_excp_id(), f.id) << e.what();
            EXPECT_EQ(e.get_pathname(), f.pathname);
        });
    }
}

TEST_F(FileOperations, FailuresArriveAsTheirClasses) {
    write_file("f");
    sfs::create_directories(bytes("full/inner"));
    sfs::create_symlink("f", bytes("link"));
    ASSERT_EQ(::mkfifo(bytes("fifo").c_str(), 0600), 0);
    ustring const none;
    using boost::posix_time::not_a_date_time;
    EXPECT_FALSE(fs::exists(at("f/x")));
    expect_failures({
        {"status under a file", [&] { fs::status(at("f/x")); }, fs::fsys_not_directory_error, none},
        {"light status keeps the path", [&] { fs::status_express_light(at("f/x")); },
         fs::fsys_not_directory_error, at("f/x")},
        {"remove absent", [&] { fs::remove(at("absent")); }, fs::fsys_path_not_found, none},
        {"remove full", [&] { fs::remove(at("full")); }, fs::fsys_directory_not_empty, at("full")},
        {"remove fifo", [&] { fs::remove(at("fifo")); }, fs::fsys_invalid_argument, none},
        {"create existing", [&] { fs::create_directory(at("full")); }, fs::fsys_file_exists_error,
         at("full")},
        {"create root", [&] { fs::create_directory(u"/"); }, fs::fsys_file_exists_error, u"/"},
        {"create under absent", [&] { fs::create_directory(at("no/x")); }, fs::fsys_path_not_found,
         at("no/x")},
        {"rename absent", [&] { fs::rename(at("absent"), at("y")); }, fs::fsys_path_not_found,
         at("absent")},
        {"link name taken", [&] { fs::create_symlink(at("f"), at("link")); },
         fs::fsys_file_exists_error, none},
        {"canonical absent", [&] { fs::canonical(at("absent"), ustring()); },
         fs::fsys_path_not_found, none},
        {"copy onto existing", [&] { fs::copy_file(at("f"), at("link"), fs::fail_if_exists); },
         fs::fsys_file_exists_error, at("f")},
        {"copy absent", [&] { fs::copy(at("absent"), at("y")); }, fs::fsys_path_not_found,
         at("absent")},
        {"copy_symlink of a file", [&] { fs::copy_symlink(at("f"), at("y")); },
         fs::fsys_invalid_argument, none},
        {"read_symlink of a file", [&] { fs::read_symlink(at("f")); }, fs::fsys_invalid_argument,
         none},
        {"mode of a link", [&] { fs::permissions(at("link"), file_status::perms_symlink); },
         fs::fsys_invalid_operation, none},
        {"mode of a missing file", [&] { fs::permissions(at("absent"), 0600); },
         fs::fsys_path_not_found, at("absent")},
        {"relative base", [&] { fs::absolute(u"a", u"relative"); }, fs::fsys_invalid_argument,
         none},
        {"two empty paths", [&] { fs::equivalent(ustring(), ustring()); },
         fs::fsys_invalid_argument, none},
        {"empty mask", [&] { fs::access(at("f"), 0); }, fs::fsys_invalid_argument, none},
        {"mask above 8", [&] { fs::access(at("f"), 0x12); }, fs::fsys_invalid_argument, none},
        {"access to absent", [&] { fs::access(at("absent"), fs::access_exists); },
         fs::fsys_path_not_found, at("absent")},
        {"not a date", [&] { fs::last_write_time(at("f"), not_a_date_time); },
         fs::fsys_invalid_argument, none},
        {"time of a missing file",
         [&] { fs::last_write_time(at("absent"), boost::posix_time::from_time_t(0)); },
         fs::fsys_path_not_found, none},
    });
}

TEST_F(FileOperations, CreateDirectories) {
    sfs::create_directories(bytes("a/b"));
    fs::create_directories(u(root_ + "//a/b/c/"));
    EXPECT_TRUE(sfs::is_directory(bytes("a/b/c")));
    fs::create_directories(upath(at("x/y/z")));
    EXPECT_EQ(sfs::status(bytes("x/y")).permissions() & sfs::perms::owner_all,
              sfs::perms::owner_all);
    for (char const* bad : {"p/../q", "..", "p/..", "../p"}) {
        EXPECT_THROW(fs::create_directories(at(bad)), fs::InvalidArgument) << bad;
    }
    EXPECT_FALSE(sfs::exists(bytes("p")));
    EXPECT_NO_THROW(fs::create_directories(at("p/..q/r")));
    write_file("file");
    expect_failures({
        {"the full path exists", [&] { fs::create_directories(at("a/b/c")); },
         fs::fsys_file_exists_error, at("a/b/c")},
        {"a parent is a file", [&] { fs::create_directories(at("file/s/t")); },
         fs::fsys_not_directory_error, at("file/s")},
    });
}

TEST_F(FileOperations, RemoveAndRemoveAll) {
    sfs::create_directories(bytes("tree/sub/deeper"));
    sfs::create_directories(bytes("outside"));
    write_file("tree/a");
    write_file("tree/sub/b");
    write_file("outside/keep");
    sfs::create_symlink(bytes("outside"), bytes("tree/sub/to_outside"));
    sfs::create_symlink("nowhere", bytes("dangling"));

    fs::remove(at("dangling"));
    EXPECT_FALSE(sfs::is_symlink(bytes("dangling")));
    fs::remove_all(upath(at("tree")));
    EXPECT_FALSE(sfs::exists(bytes("tree")));
    EXPECT_TRUE(sfs::exists(bytes("outside/keep")));  // links are removed, not followed
    fs::remove(at("outside/keep"));
    fs::remove(at("outside"));
    EXPECT_FALSE(sfs::exists(bytes("outside")));
}

TEST_F(FileOperations, RenameCopyAndLinks) {
    write_file("f", "content");
    fs::rename(at("f"), at("g"));
    EXPECT_FALSE(sfs::exists(bytes("f")));
    fs::copy_file(at("g"), at("h"), fs::fail_if_exists);
    write_file("i", "old");
    fs::copy_file(upath(at("g")), upath(at("i")), fs::overwrite_if_exists);
    EXPECT_EQ(sfs::file_size(bytes("i")), 7u);

    fs::create_symlink(u"g", at("link"));
    EXPECT_EQ(fs::read_symlink(at("link")), u"g");
    fs::copy(at("link"), at("link2"));  // recreated as a link
    EXPECT_TRUE(sfs::is_symlink(bytes("link2")));
    fs::copy_symlink(upath(at("link")), upath(at("link3")));
    EXPECT_EQ(sfs::read_symlink(bytes("link3")), "g");
    fs::copy(at("g"), at("plain"));
    EXPECT_TRUE(sfs::is_regular_file(bytes("plain")));

    sfs::create_directory(bytes("d"));
    write_file("d/inside");
    fs::copy_directory(at("d"), at("e"));
    EXPECT_TRUE(sfs::is_directory(bytes("e")));
    EXPECT_TRUE(sfs::is_empty(bytes("e")));

    EXPECT_TRUE(fs::equivalent(at("d/../g"), at("g")));
    EXPECT_TRUE(fs::equivalent(at("link"), at("g")));
    EXPECT_FALSE(fs::equivalent(at("g"), at("h")));
}

TEST_F(FileOperations, LinkTargetsLongerThanOneBuffer) {
    for (std::size_t length : {1023u, 1024u, 1025u, 2048u, 3000u}) {
        std::string target(length, 'a');
        for (std::size_t i = 200; i < length; i += 200) {
            target[i] = '/';  // keeps each element below the name length limit
        }
        std::string const link = bytes("link" + std::to_string(length));
        sfs::create_symlink(target, link);
        EXPECT_EQ(fs::read_symlink(u(link)), u(target)) << length;
    }
    sfs::create_symlink("x//y/", bytes("messy"));
    EXPECT_EQ(fs::read_symlink(upath(at("messy"))).pathname(), u"x/y");
}

TEST_F(FileOperations, PermissionsAndTimes) {
    write_file("f");
    struct row {
        unsigned int request;
        unsigned int expected;
    } const rows[] = {
        {0600, 0600},
        {file_status::perms_add | 0044, 0644},
        {file_status::perms_remove | 0004, 0640},
        {file_status::hidden_file | 0400, 0400},  // attribute bits are dropped
        {file_status::perms_add | file_status::archive_file | 0200, 0600},
        {file_status::perms_symlink | 0700, 0700},  // not a link: its own mode changes
    };
    for (auto const& r : rows) {
        fs::permissions(at("f"), r.request);
        EXPECT_EQ(fs::status(at("f")).permissions(), r.expected) << std::hex << r.request;
    }

    using boost::posix_time::ptime;
    ptime const before = fs::status(at("f")).last_access_time();
    ptime const when(boost::gregorian::date(2001, 9, 9), boost::posix_time::seconds(6400));
    fs::last_write_time(upath(at("f")), when);
    EXPECT_EQ(fs::status(at("f")).last_write_time(), when);
    EXPECT_EQ(fs::status(at("f")).last_access_time(), before);
}

TEST_F(FileOperations, ResolvingPaths) {
    sfs::create_directories(bytes("real/sub"));
    sfs::create_symlink("real", bytes("alias"));
    ustring const real = u(sfs::canonical(bytes("real/sub")).string());
    EXPECT_EQ(fs::canonical(u"alias/./sub/", at("")), real);
    EXPECT_EQ(fs::canonical(u(root_ + "/alias/sub"), u"ignored"), real);
    EXPECT_EQ(fs::get_pathname_from_volume(upath(u"alias//sub"), upath(at(""))).pathname(), real);

    EXPECT_EQ(fs::absolute(u"x/../y", at("")), at("x/../y"));
    EXPECT_EQ(fs::absolute(u"/abs", u"rel"), u"/abs");
    EXPECT_EQ(fs::absolute(upath(u"a"), upath(u"/b/")).pathname(), u"/b/a");

    ustring const previous = fs::get_current_path();
    EXPECT_TRUE(fs::change_current_path(at("alias")));
    EXPECT_EQ(fs::get_current_path(), u(sfs::canonical(bytes("real")).string()));
    EXPECT_EQ(fs::absolute(u"x", ustring()), fs::get_current_path() + u"/x");
    EXPECT_EQ(fs::canonical(u"sub", ustring()), real);
    EXPECT_TRUE(fs::change_current_path(upath(previous)));
}

// Before start-up the file system encoding is US-ASCII: a name it can't hold reaches the disk
// with the substitution character, consistently, and no conversion fails.
TEST_F(FileOperations, UnencodableNamesAreSubstitutedNotRefused) {
    ustring const name = at("caf") + u"\u00e9";
    std::string const on_disk = fs::detail::to_filesystem(name);
    ASSERT_EQ(on_disk.size(), bytes("caf").size() + 1);
    EXPECT_NE(on_disk.back(), '\xE9');
    fs::create_directory(name);
    EXPECT_TRUE(sfs::is_directory(on_disk));
    EXPECT_TRUE(fs::exists(upath(name)));
    fs::remove(name);
    EXPECT_FALSE(sfs::exists(on_disk));
}

// Root passes every permission check, so denial is seen under an ordinary user id. access()
// checks the real id, so both change; the saved id stays root to come back.
class unprivileged {
public:
    unprivileged() : was_root_(::geteuid() == 0) {
        if (was_root_) {
            EXPECT_EQ(::setresuid(65534, 65534, 0), 0);
        }
    }
    ~unprivileged() {
        if (was_root_) {
            EXPECT_EQ(::setresuid(0, 0, 0), 0);
        }
    }

private:
    bool was_root_;
};

TEST_F(FileOperations, AccessAnswersAndDenials) {
    ::chmod(root_.c_str(), 0755);
    write_file("readonly");
    ::chmod(bytes("readonly").c_str(), 0444);
    sfs::create_directory(bytes("closed"));
    write_file("closed/inner");
    ::chmod(bytes("closed").c_str(), 0700);

    {
        unprivileged const guard;
        EXPECT_TRUE(fs::access(upath(at("readonly")), fs::access_read | fs::access_exists));
        EXPECT_FALSE(fs::access(at("readonly"), fs::access_write));
        EXPECT_FALSE(fs::access(at("readonly"), fs::access_execute));
        EXPECT_FALSE(fs::access(at("closed/inner"), fs::access_read));
        ustring const hidden = at("closed/inner");
        expect_failures({
            {"existence behind a closed directory", [&] { fs::access(hidden, fs::access_exists); },
             fs::fsys_access_denied, hidden},
            {"status behind it", [&] { fs::status(hidden); }, fs::fsys_access_denied, ustring()},
            {"exists behind it", [&] { fs::exists(hidden); }, fs::fsys_access_denied, hidden},
        });
    }
}

}  // namespace
