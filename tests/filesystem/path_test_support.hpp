#ifndef FL_TESTS_FILESYSTEM_PATH_TEST_SUPPORT_HPP
#define FL_TESTS_FILESYSTEM_PATH_TEST_SUPPORT_HPP

#include <fl/i18n/ustring.hpp>

#include <string>

namespace fstest {

// Widens ASCII test text to a path name.
inline fl::i18n::ustring u(std::string const& ascii) {
    return fl::i18n::ustring(ascii.begin(), ascii.end());
}

// The same text as the character type under test, so one table serves both path types.
template <class CharT>
std::basic_string<CharT> as(std::string const& ascii) {
    return std::basic_string<CharT>(ascii.begin(), ascii.end());
}

}  // namespace fstest

#endif
