#ifndef FL_FILESYSTEM_OPERATION_ARGUMENTS_HPP
#define FL_FILESYSTEM_OPERATION_ARGUMENTS_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// How an operation's argument becomes the bytes of a system call: a ustring is cleaned first
// (native form, tilde expansion), a upath is native already.
fl::i18n::ustring native_text(fl::i18n::ustring const& path);
fl::i18n::ustring const& native_text(upath const& path);

std::string system_bytes(fl::i18n::ustring const& path);
std::string system_bytes(upath const& path);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
