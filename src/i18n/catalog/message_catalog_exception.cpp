#include <fl/i18n/catalog/message_catalog.hpp>

#include <cstdio>

namespace fl {
namespace i18n {

MessageCatalog::~MessageCatalog() = default;

char const* MessageCatalog::MessageCatalogNotInitialized::what() const noexcept {
    return "Message Catalog has not been initialized by a successful call to "
           "MessageCatalog::MessageCatalogInit";
}

char const* MessageCatalog::MessageCatalogIncorrectRoot::what() const noexcept {
    return "Incorrect Message Root Set";
}

MessageCatalog::MessageCatalogLoadFailed::MessageCatalogLoadFailed(std::string const& catalog_name)
    : message_("Message Catalog " + catalog_name +
               " was not loaded from the file. Please check file location, format or contents") {}

char const* MessageCatalog::MessageCatalogLoadFailed::what() const noexcept {
    return message_.c_str();
}

MessageCatalog::MessageNotFound::MessageNotFound(std::string const& catalog_name,
                                                 std::string const& key)
    : message_("Message Key " + key + " was not found in the catalog " + catalog_name) {}

char const* MessageCatalog::MessageNotFound::what() const noexcept {
    return message_.c_str();
}

char const* MessageCatalog::MessageFormatIncorrect::what() const noexcept {
    return "Incorrect Message Formatting Attempted";
}

MessageCatalog::IncorrectHoleCount::IncorrectHoleCount(unsigned long expected, unsigned long found)
    : expected_(expected), found_(found) {
    char text[96];
    std::snprintf(text, sizeof text, "Incorrect hole count detected. Expected : %lu Found : %lu",
                  expected, found);
    message_ = text;
}

char const* MessageCatalog::IncorrectHoleCount::what() const noexcept {
    return message_.c_str();
}

char const* MessageCatalog::InvalidPathSupplied::what() const noexcept {
    return "Path is not valid!";
}

char const* MessageCatalog::ResDirNotPresent::what() const noexcept {
    return "Resource directory not found on the path!";
}

char const* MessageCatalog::ResourcePathNotFound::what() const noexcept {
    return "Resource path not found!";
}

MessageCatalog::ResPathRemovalUnknownError::ResPathRemovalUnknownError(std::string const& detail)
    : message_("Unknown error while removal of path! Error : " + detail) {}

char const* MessageCatalog::ResPathRemovalUnknownError::what() const noexcept {
    return message_.c_str();
}

}  // namespace i18n
}  // namespace fl
