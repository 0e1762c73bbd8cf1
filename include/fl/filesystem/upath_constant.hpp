#ifndef FL_FILESYSTEM_UPATH_CONSTANT_HPP
#define FL_FILESYSTEM_UPATH_CONSTANT_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace filesystem {

// The texts of the path grammar, NUL-terminated UTF-16.
struct FL_I18N_API upath_constant {
    static char16_t const* const WILD_CARD;
    static char16_t const* const PARENT_DIRECTORY;
    static char16_t const* const CURRENT_DIRECTORY;
    static char16_t const* const FILE_EXTENSION_SEPARATOR;
    static char16_t const* const PATHNAME_SEPARATOR;
    static char16_t const* const GENERIC_PATHNAME_SEPARATOR;
};

}  // namespace filesystem
}  // namespace fl

#endif
