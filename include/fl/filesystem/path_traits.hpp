#ifndef FL_FILESYSTEM_PATH_TRAITS_HPP
#define FL_FILESYSTEM_PATH_TRAITS_HPP

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/path_algebra.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// What a path type needs to know about its characters: the texts of the grammar and how its
// pathname becomes the bytes handed to the operating system.

template <class AccessChar, class PathChar>
struct path_traits;

// Path names in UTF-16, converted to bytes by the calling thread's file system converter.
template <>
struct path_traits<char, char16_t> {
    using string_type = fl::i18n::ustring;
    using access_string_type = std::string;

    static constexpr char16_t separator = u'/';
    static constexpr char16_t extension_separator = u'.';
    static constexpr char16_t tilde = u'~';
    static char16_t const* current_directory() noexcept { return u"."; }
    static char16_t const* parent_directory() noexcept { return u".."; }

    static access_string_type access_form(string_type const& pathname) {
        return make_native_access_form(pathname);
    }
};

template <class AccessChar, class PathChar>
struct native_path_traits;

// Path names that are bytes already: usable before any converter exists.
template <>
struct native_path_traits<char, char> {
    using string_type = std::string;
    using access_string_type = std::string;

    static constexpr char separator = '/';
    static constexpr char extension_separator = '.';
    static constexpr char tilde = '~';
    static char const* current_directory() noexcept { return "."; }
    static char const* parent_directory() noexcept { return ".."; }

    static access_string_type access_form(string_type const& pathname) {
        return make_access_form(pathname);
    }
};

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
