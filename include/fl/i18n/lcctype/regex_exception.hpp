#ifndef FL_I18N_LCCTYPE_REGEX_EXCEPTION_HPP
#define FL_I18N_LCCTYPE_REGEX_EXCEPTION_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <exception>
#include <string>

namespace fl {
namespace i18n {

// Every failure of pattern_match derives from this. The identifier is the status code that
// pattern_status reports for the same failure; what() is the leaf's identifier text.
class FL_I18N_API RegexExceptionBase : public std::exception {
public:
    RegexExceptionBase(char const* message, std::int32_t id);
    RegexExceptionBase(RegexExceptionBase const& other);
    ~RegexExceptionBase() override;

    char const* what() const noexcept override;
    std::int32_t get_id() const noexcept { return id_; }

private:
    std::string message_;
    std::int32_t id_;
};

class FL_I18N_API RegexInvalidArgument : public RegexExceptionBase {
public:
    RegexInvalidArgument();
};

class FL_I18N_API RegexInvalidObject : public RegexExceptionBase {
public:
    RegexInvalidObject();
};

class FL_I18N_API RegexFailedObjectCreation : public RegexExceptionBase {
public:
    RegexFailedObjectCreation();
};

class FL_I18N_API RegexFailedMatchOperation : public RegexExceptionBase {
public:
    RegexFailedMatchOperation();
};

class FL_I18N_API RegexFailedNormalization : public RegexExceptionBase {
public:
    RegexFailedNormalization();
};

}  // namespace i18n
}  // namespace fl

#endif
