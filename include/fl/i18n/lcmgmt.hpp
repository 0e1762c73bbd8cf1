#ifndef FL_I18N_LCMGMT_HPP
#define FL_I18N_LCMGMT_HPP

#include <fl/i18n/lcmgmt/fallback_locales.hpp>
#include <fl/i18n/lcmgmt/javavm_init_context.hpp>
#include <fl/i18n/lcmgmt/lcdb.hpp>
#include <fl/i18n/lcmgmt/lcdb_entries.hpp>
#include <fl/i18n/lcmgmt/lc_rsc_exception.hpp>
#include <fl/i18n/lcmgmt/locale_name.hpp>
#include <fl/i18n/lcmgmt/manager.hpp>
#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_lc_util.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>
#include <fl/i18n/lcmgmt/startup_report.hpp>
#include <fl/i18n/lcmgmt/system_setting.hpp>

#endif
