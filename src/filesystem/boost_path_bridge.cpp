#include <fl/filesystem/boost_path_bridge.hpp>

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filename_conversion.hpp>

#include "filesystem/filename_errors.hpp"
#include "i18n/codecvt/default_converter.hpp"

namespace fl {
namespace filesystem {
namespace {

std::string bytes_of(char16_t const* text, unsigned long length) {
    fl::i18n::detail::lent_default_converter const lent;
    return detail::path_to_bytes(lent.use(), text, length);
}

}  // namespace

boost::filesystem::path make_path(char16_t const* text, unsigned long length) {
    return boost::filesystem::path(bytes_of(text, length));
}

boost::filesystem::path& append(boost::filesystem::path& path, char16_t const* text,
                                unsigned long length) {
    std::string const bytes = bytes_of(text, length);
    if (!bytes.empty()) {
        path /= boost::filesystem::path(bytes);
    }
    return path;
}

fl::i18n::ustring to_ustring(boost::filesystem::path const& path) {
    return detail::from_filesystem(path.native());
}

fl::i18n::ustring to_generic_ustring(boost::filesystem::path const& path) {
    return detail::from_filesystem(path.generic_string());
}

fl::i18n::ustring to_generic_ustring(boost::filesystem::path const& path,
                                     fl::i18n::converter<char16_t, char> const& cvt) {
    std::string const generic = path.generic_string();
    return generic.empty() ? fl::i18n::ustring() : cvt.do_convert(generic.data(), generic.size());
}

}  // namespace filesystem
}  // namespace fl
