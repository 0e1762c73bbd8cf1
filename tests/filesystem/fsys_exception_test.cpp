#include <fl/filesystem.hpp>

#include "i18n/codecvt/default_converter.hpp"
#include "support/cloned_exception.hpp"

#include <gtest/gtest.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <cerrno>
#include <string>

namespace {

namespace fs = fl::filesystem;
using fl::i18n::ustring;

struct expected_failure {
    char const* what;
    fs::fsys_excp_id id;
    ustring pathname;
    unsigned int system_error;
};

// The copy that exception_ptr carries must rethrow as the class first thrown, with every field.
void expect_failure(int error, std::string const& path, expected_failure const& expected) {
    SCOPED_TRACE("errno " + std::to_string(error));
    expect_cloned_as_thrown<fs::FsysExceptionBase>(
        [&] { fs::throw_filesystem_error(error, path); },
        [&](fs::FsysExceptionBase const& e) {
            EXPECT_STREQ(e.what(), expected.what);
            EXPECT_EQ(e.get_id(), expected.what);
            EXPECT_EQ(e.get_excp_id(), expected.id);
            EXPECT_EQ(e.get_pathname(), expected.pathname);
            EXPECT_EQ(e.get_system_error(), expected.system_error);
        });
}

TEST(FilesystemError, ErrnoMappingSurvivesExceptionPtr) {
    ustring const path = u"/x/y";
    struct row {
        int error;
        expected_failure expected;
    } const rows[] = {
        {ENOENT, {"fl:filesystem:PathNotFound", fs::fsys_path_not_found, path, 0}},
        {EACCES, {"fl:filesystem:AccessDenied", fs::fsys_access_denied, path, 0}},
        {EEXIST, {"fl:filesystem:FileExistsError", fs::fsys_file_exists_error, path, 0}},
        {ENOTDIR, {"fl:filesystem:NotDirectoryError", fs::fsys_not_directory_error, path, 0}},
        {EISDIR, {"fl:filesystem:FileIsDirectory", fs::fsys_file_is_directory, path, 0}},
        {EINVAL, {"fl:filesystem:InvalidArgument", fs::fsys_invalid_argument, u"", 0}},
        {ENAMETOOLONG, {"fl:filesystem:FileNameTooLarge", fs::fsys_file_name_too_large, path, 0}},
        {ENOTEMPTY, {"fl:filesystem:DirectoryNotEmpty", fs::fsys_directory_not_empty, path, 0}},
        {EMFILE, {"fl:filesystem:SystemError", fs::fsys_system_error, path, 24}},
    };
    for (auto const& r : rows) {
        expect_failure(r.error, "/x/y", r.expected);
    }
    EXPECT_THROW(fs::detail::throw_invalid_operation_exception(), fs::InvalidOperation);
}

// When the path itself can't be decoded the report still arrives, each byte widened with its
// sign so that nothing is lost to a second failure.
TEST(FilesystemError, UndecodablePathIsWidenedWithSignExtension) {
    // The thread's own converter keeps its call-back between loans.
    UConverter* const converter = fl::i18n::detail::lent_default_converter().get();
    UErrorCode status = U_ZERO_ERROR;
    UConverterToUCallback old_action = nullptr;
    void const* old_context = nullptr;
    ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, &old_action, &old_context,
                        &status);
    ASSERT_LE(status, U_ZERO_ERROR);
    expect_failure(ENOENT, "a\xE4",
                   {"fl:filesystem:PathNotFound", fs::fsys_path_not_found, u"a\uFFE4", 0});
    status = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter, old_action, old_context, nullptr, nullptr, &status);
    ASSERT_LE(status, U_ZERO_ERROR);
}

}  // namespace
