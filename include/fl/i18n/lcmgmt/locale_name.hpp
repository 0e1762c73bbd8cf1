#ifndef FL_I18N_LCMGMT_LOCALE_NAME_HPP
#define FL_I18N_LCMGMT_LOCALE_NAME_HPP

#include <fl/i18n/export.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

struct FL_I18N_API language_extension_context {
    char singleton = '\0';
    std::string value;
};

// A locale name taken apart: a language tag (either separator) with an encoding after "." and
// modifiers after "@". Case is kept as written.
struct FL_I18N_API locale_name_context {
    std::string language;
    std::string script;
    std::string region;
    std::string encoding;
    std::vector<std::string> modifiers;
    std::vector<std::string> variants;
    std::vector<language_extension_context> extensions;
    std::string private_use_prefix;
    std::vector<std::string> private_use;

    bool empty() const;

    // Each form leaves out the separator of an empty part.
    std::string language_and_script() const;  // "sr-Latn"
    std::string language_and_region() const;  // "sr_RS"
    std::string canonical_name() const;       // "sr-Latn_RS"
    std::string posix_name() const;           // "sr-Latn_RS.UTF-8@euro"
    std::string tag() const;                  // "sr-Latn-RS-variant-a-ext-x-private"
    std::string modifiers_string() const;     // "@euro", or empty
    std::string variants_string() const;      // "-posix", or empty
};

// Never throws: a name that doesn't parse gives a record with every member empty.
FL_I18N_API locale_name_context parse_locale_name(std::string const& name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
