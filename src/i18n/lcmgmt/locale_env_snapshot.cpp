#include "i18n/lcmgmt/locale_env_snapshot.hpp"

#include <clocale>

namespace fl {
namespace i18n {
namespace lcmgmt {

int const posix_categories[posix_category_count] = {
    LC_CTYPE, LC_COLLATE, LC_TIME,    LC_NUMERIC,   LC_MONETARY,    LC_MESSAGES,
    LC_PAPER, LC_NAME,    LC_ADDRESS, LC_TELEPHONE, LC_MEASUREMENT, LC_IDENTIFICATION};

char const* const locale_env_var_names[locale_env_var_count] = {
    "LC_CTYPE",       "LC_COLLATE",        "LC_TIME", "LC_NUMERIC", "LC_MONETARY",
    "LC_MESSAGES",    "LC_PAPER",          "LC_NAME", "LC_ADDRESS", "LC_TELEPHONE",
    "LC_MEASUREMENT", "LC_IDENTIFICATION", "LC_ALL",  "LANG"};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
