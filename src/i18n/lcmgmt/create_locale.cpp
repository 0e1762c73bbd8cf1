#include <fl/i18n/lcmgmt/locale_name.hpp>
#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include "common/throw_exception.hpp"
#include "i18n/lcmgmt/encoding_standard_name.hpp"
#include "i18n/lcmgmt/manager_context.hpp"
#include "i18n/lcmgmt/system_setting_reader.hpp"

namespace fl {
namespace i18n {
namespace {

using lcmgmt::manager_context;

struct resolved_name {
    std::string canonical;
    std::string modifier;  // without the leading "@", as OvLocaleImpl stores it
    std::string encoding;  // the database's name; empty when the name gives none
};

// The encoding part of a name must be one ICU and the database both know.
std::string checked_encoding(lcmgmt::Lcdb const& database, std::string const& part) {
    std::string const standard = lcmgmt::encoding_standard_name(part);
    auto const entry = standard.empty() ? nullptr : database.find_encoding_entry(standard);
    if (!entry) {
        detail::throw_exception(OvLcInvLcName(part));
    }
    return entry->name;
}

// lookup_name is what the database resolves: the prefix of a whole locale name, or a whole
// category name; it is also what a failure reports.
resolved_name resolve(lcmgmt::Lcdb const& database, std::string const& name,
                      std::string const& lookup_name) {
    if (name.empty()) {
        detail::throw_exception(OvLcInvLcArgument());
    }
    resolved_name result;
    result.canonical = database.canonical_locale_name(lookup_name);
    if (result.canonical.empty()) {
        detail::throw_exception(OvLcInvLcName(lookup_name));
    }
    lcmgmt::locale_name_context const parts = lcmgmt::parse_locale_name(name);
    std::string const modifiers = parts.modifiers_string();
    result.modifier = modifiers.empty() ? modifiers : modifiers.substr(1);
    if (!parts.encoding.empty()) {
        result.encoding = checked_encoding(database, parts.encoding);
    }
    return result;
}

// One load of what start-up publishes serves the whole creation, so a locale made while
// start-up runs never mixes the tables before and after it.
std::unique_ptr<OvLocaleImpl> from_name(std::string const& name) {
    lcmgmt::lookup_data const& lookup = manager_context::instance().lookup();
    resolved_name const resolved = resolve(lookup.database, name, lcmgmt::locale_name_prefix(name));
    auto locale = std::make_unique<OvLocaleImpl>(&lookup.database);
    for (int c = 0; c < OvLocaleImpl::category_count; ++c) {
        locale->set_category(resolved.canonical, resolved.modifier,
                             static_cast<OvLocale::LcCategory>(c));
    }
    if (!resolved.encoding.empty()) {
        locale->set_encoding(resolved.encoding);
    } else if (lookup.use_utf8_as_default) {
        locale->set_encoding("UTF-8");
    } else {
        locale->set_encoding(lookup.database.default_encoding_of(resolved.canonical));
    }
    return locale;
}

std::unique_ptr<OvLocaleImpl> copy_of(OvLocale const& source) {
    return std::make_unique<OvLocaleImpl>(&manager_context::instance().database(), source);
}

void apply(OvLocaleImpl& locale, OvLocale::LcCategory category, std::string const& name) {
    resolved_name const resolved = resolve(*locale.database(), name, name);
    locale.set_category(resolved.canonical, resolved.modifier, category);
}

void apply(OvLocaleImpl& locale, std::vector<OvLocale::CategoryContext> const& changes) {
    for (OvLocale::CategoryContext const& change : changes) {
        apply(locale, change.category, change.name);
    }
}

boost::shared_ptr<OvLocale> share(std::unique_ptr<OvLocaleImpl> locale) {
    return boost::shared_ptr<OvLocale>(locale.release());
}

}  // namespace

boost::shared_ptr<OvLocale> OvLocale::createLocale(std::string const& name) {
    return share(from_name(name));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(OvLocale const& source) {
    return share(copy_of(source));
}

boost::shared_ptr<OvLocale> OvLocale::createLocaleWithCForNumeric(std::string const& name) {
    auto locale = from_name(name);
    locale->set_category("en_US_POSIX", "", numeric);
    return share(std::move(locale));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(std::string const& name,
                                                   std::vector<CategoryContext> const& changes) {
    auto locale = from_name(name);
    apply(*locale, changes);
    return share(std::move(locale));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(OvLocale const& source,
                                                   std::vector<CategoryContext> const& changes) {
    auto locale = copy_of(source);
    apply(*locale, changes);
    return share(std::move(locale));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(std::string const& name, LcCategory category,
                                                   std::string const& categoryName) {
    auto locale = from_name(name);
    apply(*locale, category, categoryName);
    return share(std::move(locale));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(OvLocale const& source, LcCategory category,
                                                   std::string const& categoryName) {
    auto locale = copy_of(source);
    apply(*locale, category, categoryName);
    return share(std::move(locale));
}

boost::shared_ptr<OvLocale> OvLocale::createLocale(OvLocale const& source, LcCategory category,
                                                   OvLocale const& other) {
    auto locale = copy_of(source);
    std::string const modifier = other.getModifier(category);
    locale->set_category(other.getLocaleName(category),
                         modifier.empty() ? modifier : modifier.substr(1), category);
    return share(std::move(locale));
}

}  // namespace i18n
}  // namespace fl
