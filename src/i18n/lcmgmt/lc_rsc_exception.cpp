#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>

#include <utility>

namespace fl {
namespace i18n {
namespace {

// Paths come from the environment and may hold any byte; the hexadecimal digits stand in for a
// byte without a delimiter, as existing log readers expect.
std::string printable(std::string const& path) {
    static char const digits[] = "0123456789ABCDEF";
    std::string result;
    for (unsigned char const byte : path) {
        if (byte >= 0x20 && byte <= 0x7E) {
            result.push_back(static_cast<char>(byte));
        } else {
            if (byte >= 0x10) {
                result.push_back(digits[byte >> 4]);
            }
            result.push_back(digits[byte & 0x0F]);
        }
    }
    return result;
}

}  // namespace

LcRscExceptionBase::LcRscExceptionBase(std::string id, std::int32_t code, std::string message)
    : id_(std::move(id)), code_(code), message_(std::move(message)) {}

LcRscExceptionBase::~LcRscExceptionBase() = default;

char const* LcRscExceptionBase::what() const noexcept {
    return message_.c_str();
}

LcRscOpenFileFailure::LcRscOpenFileFailure(std::string const& path)
    : LcRscExceptionBase("fl:i18n:LcRscOpenFileFailure", 2,
                         "Failed to open file " + printable(path) + ".") {}
LcRscOpenFileFailure::~LcRscOpenFileFailure() = default;

LcRscFileReadFailure::LcRscFileReadFailure(std::string const& path)
    : LcRscExceptionBase("fl:i18n:LcRscFileReadFailure", 3,
                         "Failed to read file " + printable(path) + ".") {}
LcRscFileReadFailure::~LcRscFileReadFailure() = default;

LcRscParserCreationFailure::LcRscParserCreationFailure()
    : LcRscExceptionBase("fl:i18n:LcRscParserCreationFailure", 4, "Failed to create XML parser.") {}
LcRscParserCreationFailure::~LcRscParserCreationFailure() = default;

LcRscInvalidXmlDoc::LcRscInvalidXmlDoc(int error_code, unsigned long column, unsigned long line)
    : LcRscExceptionBase("fl:i18n:LcRscInvalidXmlDoc", 5,
                         "XML Parse error detected with " + std::to_string(error_code) +
                             " at column, " + std::to_string(column) + ", on line, " +
                             std::to_string(line) + " in resource file.") {}
LcRscInvalidXmlDoc::~LcRscInvalidXmlDoc() = default;

}  // namespace i18n
}  // namespace fl
