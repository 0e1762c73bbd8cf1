#ifndef FL_I18N_LCMGMT_SYSTEM_SETTING_HPP
#define FL_I18N_LCMGMT_SYSTEM_SETTING_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

struct FL_I18N_API locale_category_context {
    std::int32_t category = 0;  // the POSIX constant, LC_CTYPE and so on
    std::string value;
};

struct FL_I18N_API locale_env_var_context {
    std::string name;
    std::string value;
};

// The user's locale setting as start-up found it, before the environment was rewritten.
// The reserved strings are kept for the layout that callers know; this library leaves them empty.
struct FL_I18N_API system_setting_context {
    std::string reserved0;
    std::string reserved1;
    std::string reserved2;
    std::string reserved3;
    std::string reserved4;
    std::string reserved5;
    std::string reserved6;
    std::string reserved7;
    std::string reserved8;
    std::string encoding;  // nl_langinfo(CODESET) as found
    std::string reserved9;
    std::vector<locale_category_context> categories;  // each category the C library named
    std::vector<locale_env_var_context> env_vars;     // each locale variable that was set
};

FL_I18N_API system_setting_context get_original_user_locale_setting();

// Whether std::locale("") and each of its categories can be built from the environment.
FL_I18N_API bool is_std_locale_valid();

// When std::locale("") would fail, puts the environment back into the supported form that
// start-up installed, so that the next attempt succeeds.
FL_I18N_API void fix_invalid_std_locale();

// Whether the database knows the encoding, under its own name or ICU's standard name for it.
FL_I18N_API bool is_supported_encoding(std::string const& name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
