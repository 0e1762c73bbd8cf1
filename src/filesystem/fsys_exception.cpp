#include <fl/filesystem/fsys_exception.hpp>

namespace fl {
namespace filesystem {
namespace {

using fl::i18n::codecvt_excp_id;
using fl::i18n::ustring;

// Failures that carry no conversion code hold 0, which names no conversion failure.
constexpr codecvt_excp_id no_cvt_excp_id = static_cast<codecvt_excp_id>(0);

}  // namespace

FsysExceptionBase::FsysExceptionBase(char const* id, fsys_excp_id excp_id, ustring const& pathname,
                                     unsigned int system_error, codecvt_excp_id cvt_excp_id)
    : id_(id),
      excp_id_(excp_id),
      pathname_(pathname),
      system_error_(system_error),
      cvt_excp_id_(cvt_excp_id) {}

FsysExceptionBase::FsysExceptionBase(FsysExceptionBase const& other) = default;

FsysExceptionBase::~FsysExceptionBase() = default;

char const* FsysExceptionBase::what() const noexcept {
    return id_.c_str();
}

InvalidArgument::InvalidArgument()
    : FsysExceptionBase("fl:filesystem:InvalidArgument", fsys_invalid_argument, ustring(), 0,
                        no_cvt_excp_id) {}
InvalidArgument::~InvalidArgument() = default;

InvalidOperation::InvalidOperation()
    : FsysExceptionBase("fl:filesystem:InvalidOperation", fsys_invalid_operation, ustring(), 0,
                        no_cvt_excp_id) {}
InvalidOperation::~InvalidOperation() = default;

FileNameTooLarge::FileNameTooLarge(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:FileNameTooLarge", fsys_file_name_too_large, pathname, 0,
                        no_cvt_excp_id) {}
FileNameTooLarge::~FileNameTooLarge() = default;

FileNameConversionFailure::FileNameConversionFailure(codecvt_excp_id cvt_excp_id)
    : FsysExceptionBase("fl:filesystem:FileNameConversionFailure",
                        fsys_file_name_conversion_failure, ustring(), 0, cvt_excp_id) {}
FileNameConversionFailure::~FileNameConversionFailure() = default;

CvtInvalidCharacter::CvtInvalidCharacter()
    : FsysExceptionBase("fl:filesystem:CvtInvalidCharacter", fsys_cvt_invalid_character, ustring(),
                        0, no_cvt_excp_id) {}
CvtInvalidCharacter::~CvtInvalidCharacter() = default;

AccessDenied::AccessDenied(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:AccessDenied", fsys_access_denied, pathname, 0,
                        no_cvt_excp_id) {}
AccessDenied::~AccessDenied() = default;

PathNotFound::PathNotFound(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:PathNotFound", fsys_path_not_found, pathname, 0,
                        no_cvt_excp_id) {}
PathNotFound::~PathNotFound() = default;

NotDirectoryError::NotDirectoryError(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:NotDirectoryError", fsys_not_directory_error, pathname, 0,
                        no_cvt_excp_id) {}
NotDirectoryError::~NotDirectoryError() = default;

DirectoryNotEmpty::DirectoryNotEmpty(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:DirectoryNotEmpty", fsys_directory_not_empty, pathname, 0,
                        no_cvt_excp_id) {}
DirectoryNotEmpty::~DirectoryNotEmpty() = default;

FileIsDirectory::FileIsDirectory(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:FileIsDirectory", fsys_file_is_directory, pathname, 0,
                        no_cvt_excp_id) {}
FileIsDirectory::~FileIsDirectory() = default;

FileExistsError::FileExistsError(ustring const& pathname)
    : FsysExceptionBase("fl:filesystem:FileExistsError", fsys_file_exists_error, pathname, 0,
                        no_cvt_excp_id) {}
FileExistsError::~FileExistsError() = default;

PathNameComparisonFailure::PathNameComparisonFailure()
    : FsysExceptionBase("fl:filesystem:PathNameComparisonFailure",
                        fsys_path_name_comparison_failure, ustring(), 0, no_cvt_excp_id) {}
PathNameComparisonFailure::~PathNameComparisonFailure() = default;

SystemError::SystemError(ustring const& pathname, unsigned int system_error)
    : FsysExceptionBase("fl:filesystem:SystemError", fsys_system_error, pathname, system_error,
                        no_cvt_excp_id) {}
SystemError::~SystemError() = default;

TempEnvNotSpecified::TempEnvNotSpecified()
    : FsysExceptionBase("fl:filesystem:TempEnvNotSpecified", fsys_temp_env_not_specified, ustring(),
                        0, no_cvt_excp_id) {}
TempEnvNotSpecified::~TempEnvNotSpecified() = default;

}  // namespace filesystem
}  // namespace fl
