#ifndef FL_I18N_HPP
#define FL_I18N_HPP

#include <fl/i18n/build_info.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <fl/i18n/catalog.hpp>
#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/facet.hpp>
#include <fl/i18n/lcctype.hpp>
#include <fl/i18n/lcmgmt.hpp>
#include <fl/i18n/time.hpp>

#endif
