#ifndef FL_FILESYSTEM_TILDE_EXPANSION_HPP
#define FL_FILESYSTEM_TILDE_EXPANSION_HPP

#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// Expands a leading "~" or "~name" to a home directory. Works on bytes in the file system
// encoding, since that is what HOME and the user database hold.
//
// "~" and "~/..." take HOME, or the current user's entry when HOME is empty, and give that
// home alone when neither knows one, so "~/a" can come out empty. "~name..." with an unknown
// user stays as it is.
std::string expand_tilde(std::string const& text);

// The same on a path name: the whole text goes to bytes and back, so an unencodable tilde path
// fails with the conversion's exception.
fl::i18n::ustring expand_tilde(fl::i18n::ustring const& text);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
