#include <fl/filesystem/upath_constant.hpp>

namespace fl {
namespace filesystem {

char16_t const* const upath_constant::WILD_CARD = u"*";
char16_t const* const upath_constant::PARENT_DIRECTORY = u"..";
char16_t const* const upath_constant::CURRENT_DIRECTORY = u".";
char16_t const* const upath_constant::FILE_EXTENSION_SEPARATOR = u".";
char16_t const* const upath_constant::PATHNAME_SEPARATOR = u"/";
char16_t const* const upath_constant::GENERIC_PATHNAME_SEPARATOR = u"/";

}  // namespace filesystem
}  // namespace fl
