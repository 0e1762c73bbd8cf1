#include <fl/filesystem.hpp>

#include "i18n/codecvt/default_converter.hpp"

#include <gtest/gtest.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <boost/exception_ptr.hpp>

#include <cerrno>
#include <functional>
#include <string>

namespace {

namespace fs = fl::filesystem;
using fl::i18n::ustring;

template <class Leaf>
bool is_a(fs::FsysExceptionBase const& e) {
    return dynamic_cast<Leaf const*>(&e) != nullptr;
}

// Runs the throwing call, checks what arrives, and that a copy carried by exception_ptr
// rethrows as the same class with the same fields.
void expect_failure(std::function<void()> const& call,
                    bool (*is_class)(fs::FsysExceptionBase const&), char const* what,
                    fs::fsys_excp_id id, ustring const& pathname, unsigned int system_error,
                    std::string const& label) {
    boost::exception_ptr carried;
    try {
        call();
        ADD_FAILURE() << label << ": nothing thrown";
        return;
    } catch (fs::FsysExceptionBase const& e) {
        EXPECT_TRUE(is_class(e)) << label;
        EXPECT_STREQ(e.what(), what) << label;
        EXPECT_EQ(e.get_id(), what) << label;
        EXPECT_EQ(e.get_excp_id(), id) << label;
        EXPECT_EQ(e.get_pathname(), pathname) << label;
        EXPECT_EQ(e.get_system_error(), system_error) << label;
        carried = boost::current_exception();
    }
    ASSERT_TRUE(carried) << label;
    try {
        boost::rethrow_exception(carried);
    } catch (fs::FsysExceptionBase const& e) {
        EXPECT_TRUE(is_class(e)) << label << " after rethrow";
        EXPECT_EQ(e.get_pathname(), pathname) << label << " after rethrow";
        EXPECT_EQ(e.get_system_error(), system_error) << label << " after rethrow";
    }
}

TEST(FilesystemError, ErrnoMapping) {
    struct row {
        int error;
        bool (*is_class)(fs::FsysExceptionBase const&);
        char const* what;
        fs::fsys_excp_id id;
        bool keeps_path;
        unsigned int system_error;
    } const rows[] = {
        {ENOENT, &is_a<fs::PathNotFound>, "fl:filesystem:PathNotFound", fs::fsys_path_not_found,
         true, 0},
        {EACCES, &is_a<fs::AccessDenied>, "fl:filesystem:AccessDenied", fs::fsys_access_denied,
         true, 0},
        {EEXIST, &is_a<fs::FileExistsError>, "fl:filesystem:FileExistsError",
         fs::fsys_file_exists_error, true, 0},
        {ENOTDIR, &is_a<fs::NotDirectoryError>, "fl:filesystem:NotDirectoryError",
         fs::fsys_not_directory_error, true, 0},
        {EISDIR, &is_a<fs::FileIsDirectory>, "fl:filesystem:FileIsDirectory",
         fs::fsys_file_is_directory, true, 0},
        {EINVAL, &is_a<fs::InvalidArgument>, "fl:filesystem:InvalidArgument",
         fs::fsys_invalid_argument, false, 0},
        {ENAMETOOLONG, &is_a<fs::FileNameTooLarge>, "fl:filesystem:FileNameTooLarge",
         fs::fsys_file_name_too_large, true, 0},
        {ENOTEMPTY, &is_a<fs::DirectoryNotEmpty>, "fl:filesystem:DirectoryNotEmpty",
         fs::fsys_directory_not_empty, true, 0},
        {EMFILE, &is_a<fs::SystemError>, "fl:filesystem:SystemError", fs::fsys_system_error, true,
         24},
        {EPERM, &is_a<fs::SystemError>, "fl:filesystem:SystemError", fs::fsys_system_error, true,
         1},
        {EROFS, &is_a<fs::SystemError>, "fl:filesystem:SystemError", fs::fsys_system_error, true,
         30},
    };
    for (auto const& r : rows) {
        expect_failure([&] { fs::throw_filesystem_error(r.error, "/x/y"); }, r.is_class, r.what,
                       r.id, r.keeps_path ? ustring(u"/x/y") : ustring(), r.system_error,
                       "errno " + std::to_string(r.error));
    }
}

TEST(FilesystemError, ThrowsOfTheLayerAreClonable) {
    expect_failure([] { fs::detail::throw_invalid_operation_exception(); },
                   &is_a<fs::InvalidOperation>, "fl:filesystem:InvalidOperation",
                   fs::fsys_invalid_operation, ustring(), 0, "invalid operation");
    expect_failure(
        [] {
            fs::codecvt_ustring_to_filesystem const strict(false);
            strict.do_convert(u"\u00e9", 1);
        },
        &is_a<fs::CvtInvalidCharacter>, "fl:filesystem:CvtInvalidCharacter",
        fs::fsys_cvt_invalid_character, ustring(), 0, "strict conversion");
}

TEST(FilesystemError, ConstructedFields) {
    fs::FileNameConversionFailure const failure(fl::i18n::codecvt_conversion_failure);
    EXPECT_EQ(failure.get_cvt_excp_id(), fl::i18n::codecvt_conversion_failure);
    EXPECT_TRUE(failure.get_pathname().empty());
    fs::PathNameComparisonFailure const comparison;
    EXPECT_STREQ(comparison.what(), "fl:filesystem:PathNameComparisonFailure");
    EXPECT_EQ(comparison.get_excp_id(), fs::fsys_path_name_comparison_failure);
    fs::TempEnvNotSpecified const temp;
    EXPECT_STREQ(temp.what(), "fl:filesystem:TempEnvNotSpecified");
    EXPECT_EQ(temp.get_excp_id(), fs::fsys_temp_env_not_specified);
    fs::SystemError const copied(fs::SystemError(u"/p", 5));
    EXPECT_EQ(copied.get_pathname(), u"/p");
    EXPECT_EQ(copied.get_system_error(), 5u);
}

// When the path itself can't be decoded the report still arrives, each byte widened with its
// sign so that nothing is lost to a second failure.
TEST(FilesystemError, UndecodablePathIsWidenedWithSignExtension) {
    UConverter* const converter = fl::i18n::detail::thread_default_converter();
    UErrorCode status = U_ZERO_ERROR;
    UConverterToUCallback old_action = nullptr;
    void const* old_context = nullptr;
    ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, &old_action, &old_context,
                        &status);
    ASSERT_LE(status, U_ZERO_ERROR);
    expect_failure([] { fs::throw_filesystem_error(ENOENT, "a\xE4"); }, &is_a<fs::PathNotFound>,
                   "fl:filesystem:PathNotFound", fs::fsys_path_not_found, ustring(u"a\uFFE4"), 0,
                   "strict thread converter");
    status = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter, old_action, old_context, nullptr, nullptr, &status);
    ASSERT_LE(status, U_ZERO_ERROR);

    // The thread's converter substitutes by default, so the widening is not needed there.
    try {
        fs::throw_filesystem_error(ENOENT, "a\xE4");
    } catch (fs::PathNotFound const& e) {
        ASSERT_EQ(e.get_pathname().size(), 2u);
        EXPECT_NE(e.get_pathname()[1], u'\uFFE4');
    }
}

}  // namespace
