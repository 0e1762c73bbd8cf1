#ifndef FL_FILESYSTEM_FSYS_EXCEPTION_HPP
#define FL_FILESYSTEM_FSYS_EXCEPTION_HPP

#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <exception>
#include <string>

namespace fl {
namespace filesystem {

// The numeric identity of each failure class; 0 belongs to none.
enum fsys_excp_id : unsigned int {
    fsys_no_exception = 0,
    fsys_invalid_argument = 1,
    fsys_invalid_operation = 2,
    fsys_file_name_too_large = 3,
    fsys_file_name_conversion_failure = 4,
    fsys_cvt_invalid_character = 5,
    fsys_access_denied = 6,
    fsys_path_not_found = 7,
    fsys_not_directory_error = 8,
    fsys_directory_not_empty = 9,
    fsys_file_is_directory = 10,
    fsys_file_exists_error = 11,
    fsys_path_name_comparison_failure = 12,
    fsys_system_error = 13,
    fsys_temp_env_not_specified = 14,
};

// Every failure of the filesystem layer. what() gives the identifier, "fl:filesystem:" and the
// class name; the path concerned, the errno value of a SystemError and the conversion code of a
// conversion failure travel with it.
class FL_I18N_API FsysExceptionBase : public std::exception {
public:
    FsysExceptionBase(char const* id, fsys_excp_id excp_id, fl::i18n::ustring const& pathname,
                      unsigned int system_error, fl::i18n::codecvt_excp_id cvt_excp_id);
    FsysExceptionBase(FsysExceptionBase const& other);
    ~FsysExceptionBase() override = 0;

    char const* what() const noexcept override;

    std::string const& get_id() const noexcept { return id_; }
    fsys_excp_id get_excp_id() const noexcept { return excp_id_; }
    fl::i18n::ustring const& get_pathname() const noexcept { return pathname_; }
    unsigned int get_system_error() const noexcept { return system_error_; }
    fl::i18n::codecvt_excp_id get_cvt_excp_id() const noexcept { return cvt_excp_id_; }

private:
    std::string id_;
    fsys_excp_id excp_id_;
    fl::i18n::ustring pathname_;
    unsigned int system_error_;
    fl::i18n::codecvt_excp_id cvt_excp_id_;
};

class FL_I18N_API InvalidArgument : public FsysExceptionBase {
public:
    InvalidArgument();
    ~InvalidArgument() override;
};

class FL_I18N_API InvalidOperation : public FsysExceptionBase {
public:
    InvalidOperation();
    ~InvalidOperation() override;
};

class FL_I18N_API FileNameTooLarge : public FsysExceptionBase {
public:
    explicit FileNameTooLarge(fl::i18n::ustring const& pathname);
    ~FileNameTooLarge() override;
};

class FL_I18N_API FileNameConversionFailure : public FsysExceptionBase {
public:
    explicit FileNameConversionFailure(fl::i18n::codecvt_excp_id cvt_excp_id);
    ~FileNameConversionFailure() override;
};

class FL_I18N_API CvtInvalidCharacter : public FsysExceptionBase {
public:
    CvtInvalidCharacter();
    ~CvtInvalidCharacter() override;
};

class FL_I18N_API AccessDenied : public FsysExceptionBase {
public:
    explicit AccessDenied(fl::i18n::ustring const& pathname);
    ~AccessDenied() override;
};

class FL_I18N_API PathNotFound : public FsysExceptionBase {
public:
    explicit PathNotFound(fl::i18n::ustring const& pathname);
    ~PathNotFound() override;
};

class FL_I18N_API NotDirectoryError : public FsysExceptionBase {
public:
    explicit NotDirectoryError(fl::i18n::ustring const& pathname);
    ~NotDirectoryError() override;
};

class FL_I18N_API DirectoryNotEmpty : public FsysExceptionBase {
public:
    explicit DirectoryNotEmpty(fl::i18n::ustring const& pathname);
    ~DirectoryNotEmpty() override;
};

class FL_I18N_API FileIsDirectory : public FsysExceptionBase {
public:
    explicit FileIsDirectory(fl::i18n::ustring const& pathname);
    ~FileIsDirectory() override;
};

class FL_I18N_API FileExistsError : public FsysExceptionBase {
public:
    explicit FileExistsError(fl::i18n::ustring const& pathname);
    ~FileExistsError() override;
};

class FL_I18N_API PathNameComparisonFailure : public FsysExceptionBase {
public:
    PathNameComparisonFailure();
    ~PathNameComparisonFailure() override;
};

class FL_I18N_API SystemError : public FsysExceptionBase {
public:
    SystemError(fl::i18n::ustring const& pathname, unsigned int system_error);
    ~SystemError() override;
};

class FL_I18N_API TempEnvNotSpecified : public FsysExceptionBase {
public:
    TempEnvNotSpecified();
    ~TempEnvNotSpecified() override;
};

}  // namespace filesystem
}  // namespace fl

#endif
