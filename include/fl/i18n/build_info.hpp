#ifndef FL_I18N_BUILD_INFO_HPP
#define FL_I18N_BUILD_INFO_HPP

#include <fl/i18n/export.hpp>

extern "C" {
// The library's version, its path below the install root, and the date it was built.
FL_I18N_API extern char const* const libovi18n_version;
FL_I18N_API extern char const* const libovi18n_relative_path;
FL_I18N_API extern char const* const libovi18n_build_date;
}

#endif
