#ifndef OVI18N_TOOL_LOCALE_SECTIONS_HPP
#define OVI18N_TOOL_LOCALE_SECTIONS_HPP

#include "report.hpp"

#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <string>

namespace ovi18n_tool {

// The parts of the locale report, each read from the started library.
report::entry describe_locale(std::string key, fl::i18n::OvLocale const& locale);
report::entry describe_locale_information(std::string key);
report::entry describe_database(std::string key);
report::entry describe_c_library(std::string key);
report::entry describe_icu_defaults(std::string key);
report::entry describe_messages_fallback(std::string key);
report::entry describe_javavm_context(std::string key);

}  // namespace ovi18n_tool

#endif
