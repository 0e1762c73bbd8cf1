#ifndef FL_I18N_CATALOG_RESOURCE_SEARCH_HPP
#define FL_I18N_CATALOG_RESOURCE_SEARCH_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

// The walk behind every resource_finder search: each locale of the list in turn, and for each
// the base paths in turn (or, with base_paths null, the substituted pattern as a whole path).
// index counts the locales tried on from the value it has, stays where the match is, and turns
// -1 when nothing matches; an empty pattern, or one without the formatter, leaves it alone.
fl::filesystem::upath search_resource(ustring const& pattern, ustring const& formatter,
                                      std::vector<ustring> const& locales,
                                      std::vector<fl::filesystem::upath> const* base_paths,
                                      int& index);

// Each code unit cut to a byte: locale names are ASCII.
std::string narrow_locale_name(ustring const& name);

}  // namespace i18n
}  // namespace fl

#endif
