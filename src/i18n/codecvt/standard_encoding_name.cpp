#include <fl/i18n/codecvt/standard_encoding_name.hpp>

#include "i18n/lcmgmt/encoding_standard_name.hpp"
#include "i18n/lcmgmt/manager_context.hpp"

namespace fl {
namespace i18n {

std::string get_standard_encoding_name(std::string const& name) {
    lcmgmt::Lcdb const& database = lcmgmt::manager_context::instance().database();
    // The database wins before ICU is asked: its names are the ones the rest of the library uses.
    if (char const* known = database.standard_encoding_name(name)) {
        return known;
    }
    std::string const working = lcmgmt::encoding_standard_name(name);
    // ICU may map an alias the database lacks onto a name the database does know.
    if (char const* known = database.standard_encoding_name(working)) {
        return known;
    }
    return working;
}

}  // namespace i18n
}  // namespace fl
