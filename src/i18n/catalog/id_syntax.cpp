#include "i18n/catalog/id_syntax.hpp"

namespace fl {
namespace i18n {
namespace catalog {
namespace {

// Locale-free on purpose: bytes above 0x7F must never count as letters.
bool is_token_start(char c) noexcept {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool is_token_char(char c) noexcept {
    return is_token_start(c) || (c >= '0' && c <= '9');
}

bool is_token(std::string const& id, std::size_t begin, std::size_t end) noexcept {
    if (begin == end || !is_token_start(id[begin])) {
        return false;
    }
    for (std::size_t i = begin + 1; i < end; ++i) {
        if (!is_token_char(id[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool has_token_syntax(std::string const& id) noexcept {
    std::size_t colon = id.find(':');
    if (colon == std::string::npos) {
        return false;
    }
    std::size_t begin = 0;
    for (;;) {
        std::size_t const end = colon == std::string::npos ? id.size() : colon;
        if (!is_token(id, begin, end)) {
            return false;
        }
        if (colon == std::string::npos) {
            return true;
        }
        begin = colon + 1;
        colon = id.find(':', begin);
    }
}

}  // namespace catalog
}  // namespace i18n
}  // namespace fl
