#ifndef FL_FILESYSTEM_BOOST_PATH_BRIDGE_HPP
#define FL_FILESYSTEM_BOOST_PATH_BRIDGE_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/filesystem/path.hpp>

namespace fl {
namespace filesystem {

// Bridges for callers that hold a boost::filesystem::path. The text is converted by the calling
// thread's file system converter and otherwise taken as it is: no native form either way.

FL_I18N_API boost::filesystem::path make_path(char16_t const* text, unsigned long length);

// Appends as boost::filesystem::path does, separator handling included; unlike the path
// algebra, an absolute text is accepted. Empty bytes leave the path alone.
FL_I18N_API boost::filesystem::path& append(boost::filesystem::path& path, char16_t const* text,
                                            unsigned long length);

FL_I18N_API fl::i18n::ustring to_ustring(boost::filesystem::path const& path);
FL_I18N_API fl::i18n::ustring to_generic_ustring(boost::filesystem::path const& path);
// An empty generic text gives an empty result without calling the converter.
FL_I18N_API fl::i18n::ustring to_generic_ustring(boost::filesystem::path const& path,
                                                 fl::i18n::converter<char16_t, char> const& cvt);

}  // namespace filesystem
}  // namespace fl

#endif
