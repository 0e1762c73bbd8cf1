#ifndef FL_COMMON_ASCII_HPP
#define FL_COMMON_ASCII_HPP

#include <string>

namespace fl {
namespace detail {

// Keys and identifiers are ASCII; lower-casing them must not depend on any locale in force.
inline char to_ascii_lower(char c) {
    return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c;
}

inline std::string to_ascii_lower(std::string s) {
    for (char& c : s) {
        c = to_ascii_lower(c);
    }
    return s;
}

}  // namespace detail
}  // namespace fl

#endif
