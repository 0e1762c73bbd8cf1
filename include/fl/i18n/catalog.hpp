#ifndef FL_I18N_CATALOG_HPP
#define FL_I18N_CATALOG_HPP

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id.hpp>
#include <fl/i18n/catalog/message_id_completion.hpp>
#include <fl/i18n/catalog/resource_finder.hpp>

#endif
