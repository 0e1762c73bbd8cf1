#ifndef FL_FILESYSTEM_PATH_GRAMMAR_HPP
#define FL_FILESYSTEM_PATH_GRAMMAR_HPP

#include <string>

namespace fl {
namespace filesystem {
namespace detail {
namespace grammar {

// The grammar is the same for UTF-16 path names and for the bytes of narrow native paths: every
// character it looks at is ASCII, so one template serves both.
template <class CharT>
struct units {
    static constexpr CharT separator = CharT('/');
    static constexpr CharT dot = CharT('.');
    static constexpr CharT tilde = CharT('~');
};

template <class CharT>
bool is_separator(CharT c) {
    return c == units<CharT>::separator;
}

template <class CharT>
bool is_absolute(std::basic_string<CharT> const& text) {
    return !text.empty() && is_separator(text[0]);
}

// "." and ".." are names of directories, not names with an extension.
template <class CharT>
bool is_dot_name(std::basic_string<CharT> const& name) {
    CharT const dot = units<CharT>::dot;
    return (name.size() == 1 && name[0] == dot) ||
           (name.size() == 2 && name[0] == dot && name[1] == dot);
}

template <class CharT>
std::basic_string<CharT> last_element(std::basic_string<CharT> const& text) {
    auto const p = text.rfind(units<CharT>::separator);
    return p == std::basic_string<CharT>::npos ? text : text.substr(p + 1);
}

}  // namespace grammar
}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
