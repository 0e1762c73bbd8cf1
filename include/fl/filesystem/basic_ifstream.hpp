#ifndef FL_FILESYSTEM_BASIC_IFSTREAM_HPP
#define FL_FILESYSTEM_BASIC_IFSTREAM_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/noncopyable.hpp>

#include <fstream>
#include <ios>
#include <string>

namespace fl {
namespace filesystem {

// An input file stream on a Unicode path name, opened through the path's access form (the
// calling thread's file system converter). Failing to open is reported by the stream state,
// as with the standard stream.
template <class CharT, class Traits = std::char_traits<CharT>>
class basic_ifstream : public std::basic_ifstream<CharT, Traits>, private boost::noncopyable {
public:
    using base_type = std::basic_ifstream<CharT, Traits>;

    basic_ifstream() = default;

    explicit basic_ifstream(upath const& path, std::ios_base::openmode mode = std::ios_base::in)
        : base_type(path.access_form(), mode) {}

    // The text is brought to native form with tilde expansion first.
    explicit basic_ifstream(fl::i18n::ustring const& path,
                            std::ios_base::openmode mode = std::ios_base::in)
        : basic_ifstream(upath(path), mode) {}

    // Bytes that are an access form already, such as make_native_access_form gives.
    explicit basic_ifstream(std::string const& access_form,
                            std::ios_base::openmode mode = std::ios_base::in)
        : base_type(access_form, mode) {}

    void open(upath const& path, std::ios_base::openmode mode = std::ios_base::in) {
        base_type::open(path.access_form(), mode);
    }
    void open(fl::i18n::ustring const& path, std::ios_base::openmode mode = std::ios_base::in) {
        open(upath(path), mode);
    }
    void open(std::string const& access_form, std::ios_base::openmode mode = std::ios_base::in) {
        base_type::open(access_form, mode);
    }
};

using ifstream = basic_ifstream<char>;

}  // namespace filesystem
}  // namespace fl

#endif
