#ifndef FL_I18N_CATALOG_ID_SYNTAX_HPP
#define FL_I18N_CATALOG_ID_SYNTAX_HPP

#include <string>

namespace fl {
namespace i18n {
namespace catalog {

// True when id is two or more tokens joined by single colons.
bool has_token_syntax(std::string const& id) noexcept;

}  // namespace catalog
}  // namespace i18n
}  // namespace fl

#endif
