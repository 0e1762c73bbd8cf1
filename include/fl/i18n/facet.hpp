#ifndef FL_I18N_FACET_HPP
#define FL_I18N_FACET_HPP

#include <fl/i18n/facet/ctype_facet.hpp>
#include <fl/i18n/facet/global_std_locale.hpp>
#include <fl/i18n/facet/numpunct_facet.hpp>

#endif
