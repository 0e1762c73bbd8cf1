#ifndef FL_I18N_CATALOG_RESOURCE_FINDER_HPP
#define FL_I18N_CATALOG_RESOURCE_FINDER_HPP

#include <fl/filesystem/basic_path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

class OvLocale;

// Finds a localised file: a pattern with a place for the locale (the formatter, "%S" unless
// told otherwise) is tried with the locale, the locale cut at its last "_", and the default
// locale, in that order; for each, every base path in order. The first file that exists wins,
// so a better locale in a later base beats a worse one in an earlier base.
//
// find, add_base_path and remove_base_path are const yet record what they did; an object is
// therefore not to be shared between threads without a lock.
class FL_I18N_API resource_finder {
public:
    static ustring const default_formatter;

    // An empty formatter means default_formatter. With use_default_locale false the last try
    // is the pattern with the formatter (and a "_" before it) removed.
    resource_finder(std::vector<fl::filesystem::upath> const& base_paths, OvLocale const& locale,
                    bool use_default_locale, ustring const& formatter);

    // An empty path when nothing is found, or when the pattern holds no formatter; in that
    // last case get_locale() may still name the first locale, so test the path first.
    fl::filesystem::upath find(ustring const& pattern) const;
    fl::filesystem::upath find(ustring const& pattern, ustring const& formatter) const;
    // Searches for another locale; found_locale gets the locale that matched, or "".
    fl::filesystem::upath find(ustring const& pattern, OvLocale const& locale,
                               std::string& found_locale) const;
    // Counts on from the last search's index, and on success answers with the locale asked
    // for rather than the one that matched; callers rely on both.
    fl::filesystem::upath find(ustring const& pattern, OvLocale const& locale,
                               ustring const& formatter, std::string& found_locale) const;

    // The locale of the last find's match, "" when there was none.
    std::string get_locale() const;
    // The LC_MESSAGES name of the locale given to the constructor.
    std::string get_current_locale() const;

    // False when the same path text is listed already.
    bool add_base_path(fl::filesystem::upath const& path) const;
    // Removes the first with the same text; false if there is none.
    bool remove_base_path(fl::filesystem::upath const& path) const;
    std::vector<fl::filesystem::upath> get_base_path_list() const;

    // The forms without base paths take the pattern as a whole path.
    static fl::filesystem::upath find_resource(ustring const& pattern, OvLocale const& locale,
                                               bool use_default_locale, ustring const& formatter);
    static fl::filesystem::upath find_resource(ustring const& pattern, std::string& found_locale,
                                               OvLocale const& locale, bool use_default_locale,
                                               ustring const& formatter);
    static fl::filesystem::upath find_resource(std::vector<fl::filesystem::upath> const& base_paths,
                                               ustring const& pattern, OvLocale const& locale,
                                               bool use_default_locale, ustring const& formatter);
    static fl::filesystem::upath find_resource(std::vector<fl::filesystem::upath> const& base_paths,
                                               ustring const& pattern, std::string& found_locale,
                                               OvLocale const& locale, bool use_default_locale,
                                               ustring const& formatter);

private:
    mutable ustring formatter;
    mutable std::vector<fl::filesystem::upath> base_paths;
    std::string locale_name;
    std::vector<ustring> locale_list;
    mutable int found_index;
    bool use_default_locale;
};

}  // namespace i18n
}  // namespace fl

#endif
