#include <fl/i18n/catalog/resource_finder.hpp>

#include <fl/i18n/lcmgmt/fallback_locales.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/resource_search.hpp"

#include <algorithm>

namespace fl {
namespace i18n {
namespace {

using fl::filesystem::upath;

// The locale, the locale cut at its last "_", then the classic locale's language (worked out
// once, on first use), or "" for no locale at all.
std::vector<ustring> locale_list_of(OvLocale const& locale, bool use_default_locale) {
    return use_default_locale ? get_fallback_locales(locale)
                              : get_fallback_locales_with_empty_default(locale);
}

ustring const& formatter_or_default(ustring const& formatter) {
    return formatter.empty() ? resource_finder::default_formatter : formatter;
}

upath find_with_locale(ustring const& pattern, std::vector<ustring> const& locales,
                       ustring const& formatter, std::vector<upath> const* base_paths,
                       std::string& found_locale) {
    int index = 0;
    upath found =
        search_resource(pattern, formatter_or_default(formatter), locales, base_paths, index);
    found_locale = found.empty() ? std::string() : narrow_locale_name(locales[index]);
    return found;
}

}  // namespace

ustring const resource_finder::default_formatter = u"%S";

resource_finder::resource_finder(std::vector<upath> const& base_paths, OvLocale const& locale,
                                 bool use_default_locale, ustring const& formatter)
    : formatter(formatter_or_default(formatter)),
      base_paths(base_paths),
      locale_name(locale.getLocaleName(OvLocale::messages)),
      locale_list(locale_list_of(locale, use_default_locale)),
      found_index(-1),
      use_default_locale(use_default_locale) {}

upath resource_finder::find(ustring const& pattern) const {
    found_index = 0;
    return search_resource(pattern, formatter, locale_list, &base_paths, found_index);
}

upath resource_finder::find(ustring const& pattern, ustring const& formatter) const {
    found_index = 0;
    return search_resource(pattern, formatter_or_default(formatter), locale_list, &base_paths,
                           found_index);
}

upath resource_finder::find(ustring const& pattern, OvLocale const& locale,
                            std::string& found_locale) const {
    return find_with_locale(pattern, locale_list_of(locale, use_default_locale), formatter,
                            &base_paths, found_locale);
}

upath resource_finder::find(ustring const& pattern, OvLocale const& locale,
                            ustring const& formatter, std::string& found_locale) const {
    // Callers depend on both oddities here: the count goes on from the last search, and a match
    // answers with the locale asked for, whichever one matched.
    std::vector<ustring> const locales = locale_list_of(locale, use_default_locale);
    upath found = search_resource(pattern, formatter_or_default(formatter), locales, &base_paths,
                                  found_index);
    found_locale = found.empty() ? std::string() : narrow_locale_name(locales.front());
    return found;
}

std::string resource_finder::get_locale() const {
    // The count of the form that goes on from the last search may run past the list.
    if (found_index < 0 || static_cast<std::size_t>(found_index) >= locale_list.size()) {
        return std::string();
    }
    return narrow_locale_name(locale_list[static_cast<std::size_t>(found_index)]);
}

std::string resource_finder::get_current_locale() const {
    return locale_name;
}

bool resource_finder::add_base_path(upath const& path) const {
    if (std::find(base_paths.begin(), base_paths.end(), path) != base_paths.end()) {
        return false;
    }
    base_paths.push_back(path);
    return true;
}

bool resource_finder::remove_base_path(upath const& path) const {
    auto const at = std::find(base_paths.begin(), base_paths.end(), path);
    if (at == base_paths.end()) {
        return false;
    }
    base_paths.erase(at);
    return true;
}

std::vector<upath> resource_finder::get_base_path_list() const {
    return base_paths;
}

upath resource_finder::find_resource(ustring const& pattern, OvLocale const& locale,
                                     bool use_default_locale, ustring const& formatter) {
    std::string ignored;
    return find_resource(pattern, ignored, locale, use_default_locale, formatter);
}

upath resource_finder::find_resource(ustring const& pattern, std::string& found_locale,
                                     OvLocale const& locale, bool use_default_locale,
                                     ustring const& formatter) {
    return find_with_locale(pattern, locale_list_of(locale, use_default_locale), formatter, nullptr,
                            found_locale);
}

upath resource_finder::find_resource(std::vector<upath> const& base_paths, ustring const& pattern,
                                     OvLocale const& locale, bool use_default_locale,
                                     ustring const& formatter) {
    std::string ignored;
    return find_resource(base_paths, pattern, ignored, locale, use_default_locale, formatter);
}

upath resource_finder::find_resource(std::vector<upath> const& base_paths, ustring const& pattern,
                                     std::string& found_locale, OvLocale const& locale,
                                     bool use_default_locale, ustring const& formatter) {
    return find_with_locale(pattern, locale_list_of(locale, use_default_locale), formatter,
                            &base_paths, found_locale);
}

}  // namespace i18n
}  // namespace fl
