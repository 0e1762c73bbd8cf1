#ifndef FL_I18N_LCMGMT_LC_RSC_EXCEPTION_HPP
#define FL_I18N_LCMGMT_LC_RSC_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {

// Failures to read the locale database file. Start-up turns each into a warning; what() gives
// the message. Paths in messages keep printable ASCII and show any other byte in hexadecimal, so
// a message is always safe to log.
class FL_I18N_API LcRscExceptionBase : public std::exception {
public:
    LcRscExceptionBase(std::string id, std::int32_t code, std::string message);
    ~LcRscExceptionBase() override;

    char const* what() const noexcept override;

    std::string const& getId() const noexcept { return id_; }
    std::int32_t getCode() const noexcept { return code_; }
    std::string const& getMessage() const noexcept { return message_; }

private:
    std::string id_;
    std::int32_t code_;
    std::string message_;
};

class FL_I18N_API LcRscOpenFileFailure : public LcRscExceptionBase {
public:
    explicit LcRscOpenFileFailure(std::string const& path);
    ~LcRscOpenFileFailure() override;
};

class FL_I18N_API LcRscFileReadFailure : public LcRscExceptionBase {
public:
    explicit LcRscFileReadFailure(std::string const& path);
    ~LcRscFileReadFailure() override;
};

class FL_I18N_API LcRscParserCreationFailure : public LcRscExceptionBase {
public:
    LcRscParserCreationFailure();
    ~LcRscParserCreationFailure() override;
};

class FL_I18N_API LcRscInvalidXmlDoc : public LcRscExceptionBase {
public:
    // The parser's error number and its position, as the XML parser counts them.
    LcRscInvalidXmlDoc(int error_code, unsigned long column, unsigned long line);
    ~LcRscInvalidXmlDoc() override;
};

}  // namespace i18n
}  // namespace fl

#endif
