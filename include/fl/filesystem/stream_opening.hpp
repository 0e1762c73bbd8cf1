#ifndef FL_FILESYSTEM_STREAM_OPENING_HPP
#define FL_FILESYSTEM_STREAM_OPENING_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdio>
#include <string>

namespace fl {
namespace filesystem {

// The C library's fopen and freopen on Unicode path names. Unlike the rest of the layer they
// report the C way: a null result with errno. An empty path, a path starting with NUL or an
// empty mode is EINVAL; a ustring ending in "/" is EISDIR without asking the system. Only a
// failed conversion of the name throws. Without a converter the name goes through the calling
// thread's file system converter.
//
// A ustring is cleaned first (tilde expansion, doubled and trailing separators); a upath is
// native already and goes as it stands.

FL_I18N_API std::FILE* fopen(fl::i18n::ustring const& path, std::string const& mode);
FL_I18N_API std::FILE* fopen(fl::i18n::ustring const& path, std::string const& mode,
                             fl::i18n::converter<char, char16_t> const& cvt);
FL_I18N_API std::FILE* fopen(upath const& path, std::string const& mode);
FL_I18N_API std::FILE* fopen(upath const& path, std::string const& mode,
                             fl::i18n::converter<char, char16_t> const& cvt);

// A null stream is EINVAL. On the early failures the stream stays open as it was.
FL_I18N_API std::FILE* freopen(fl::i18n::ustring const& path, std::string const& mode,
                               std::FILE* stream);
FL_I18N_API std::FILE* freopen(fl::i18n::ustring const& path, std::string const& mode,
                               std::FILE* stream, fl::i18n::converter<char, char16_t> const& cvt);
FL_I18N_API std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream);
FL_I18N_API std::FILE* freopen(upath const& path, std::string const& mode, std::FILE* stream,
                               fl::i18n::converter<char, char16_t> const& cvt);

}  // namespace filesystem
}  // namespace fl

#endif
