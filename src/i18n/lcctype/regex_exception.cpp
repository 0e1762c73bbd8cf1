#include <fl/i18n/lcctype/regex_exception.hpp>

namespace fl {
namespace i18n {

RegexExceptionBase::RegexExceptionBase(char const* message, std::int32_t id)
    : message_(message), id_(id) {}

RegexExceptionBase::RegexExceptionBase(RegexExceptionBase const& other) = default;

RegexExceptionBase::~RegexExceptionBase() = default;

char const* RegexExceptionBase::what() const noexcept {
    return message_.c_str();
}

RegexInvalidArgument::RegexInvalidArgument()
    : RegexExceptionBase("fl:i18n:RegexInvalidArgument", 2) {}

RegexInvalidObject::RegexInvalidObject() : RegexExceptionBase("fl:i18n:RegexInvalidObject", 3) {}

RegexFailedObjectCreation::RegexFailedObjectCreation()
    : RegexExceptionBase("fl:i18n:RegexFailedObjectCreation", 4) {}

RegexFailedMatchOperation::RegexFailedMatchOperation()
    : RegexExceptionBase("fl:i18n:RegexFailedMatchOperation", 5) {}

RegexFailedNormalization::RegexFailedNormalization()
    : RegexExceptionBase("fl:i18n:RegexFailedNormalization", 6) {}

}  // namespace i18n
}  // namespace fl
