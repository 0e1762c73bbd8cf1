#ifndef FL_I18N_LCMGMT_OPTIONAL_LOCALE_DATA_HPP
#define FL_I18N_LCMGMT_OPTIONAL_LOCALE_DATA_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>

#include <string>

namespace fl {
namespace i18n {
namespace lcmgmt {

std::string jvm_encoding_name(Lcdb const* database, std::string const& encoding);

// Kept apart so that a platform whose terminal reads in another encoding can say so.
bool terminal_input_follows_output();

OvLcOptDataCtx::LcPaperSizeType paper_size_of(std::string const& locale_name);
OvLcOptDataCtx::LcUnitType unit_type_of(std::string const& locale_name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
