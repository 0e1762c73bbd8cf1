#include "platform/c_library_locale.hpp"

#include <langinfo.h>
#include <clocale>

namespace fl {
namespace i18n {
namespace detail {
namespace platform {
namespace {

std::string text_or_empty(char const* text) {
    return text != nullptr ? std::string(text) : std::string();
}

}  // namespace

std::string current_c_locale(int category) {
    return text_or_empty(std::setlocale(category, nullptr));
}

void follow_environment_locale(int category) {
    std::setlocale(category, "");
}

std::string current_codeset() {
    return text_or_empty(nl_langinfo(CODESET));
}

}  // namespace platform
}  // namespace detail
}  // namespace i18n
}  // namespace fl
