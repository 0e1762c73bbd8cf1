#include "filesystem/tilde_expansion.hpp"

#include <fl/filesystem/access_form.hpp>

#include "platform/posix_platform.hpp"

namespace fl {
namespace filesystem {
namespace detail {

std::string expand_tilde(std::string const& text) {
    if (text.empty() || text[0] != '~') {
        return text;
    }
    if (text.size() == 1 || text[1] == '/') {
        std::string home = platform::home_variable();
        if (home.empty()) {
            home = platform::home_directory_of_current_user();
        }
        // "~/" is the home alone; with no home at all the result is empty, not the tilde text.
        if (!home.empty() && text.size() > 2) {
            home.append(text, 1, std::string::npos);
        }
        return home;
    }
    auto const separator = text.find('/');
    std::string const user =
        text.substr(1, separator == std::string::npos ? std::string::npos : separator - 1);
    std::string home = platform::home_directory_of_user(user);
    if (home.empty()) {
        return text;
    }
    if (separator != std::string::npos) {
        home.append(text, separator, std::string::npos);
    }
    return home;
}

fl::i18n::ustring expand_tilde(fl::i18n::ustring const& text) {
    return from_filesystem(expand_tilde(to_filesystem(text)));
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
