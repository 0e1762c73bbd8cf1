#ifndef FL_I18N_LCMGMT_LCDB_BUILTIN_DATA_HPP
#define FL_I18N_LCMGMT_LCDB_BUILTIN_DATA_HPP

#include <fl/i18n/lcmgmt/lcdb_entries.hpp>

#include <cstddef>
#include <cstdint>

// The tables compiled into the library. Rows of the language table refer to the name tables by
// index, so the order of every name table is part of the data.
namespace fl {
namespace i18n {
namespace lcmgmt {
namespace builtin {

extern char const* const language_names[];
extern std::size_t const language_name_count;

// Single ISO 15924 codes first, then blank-separated lists of them.
extern char const* const script_names[];
extern std::size_t const script_name_count;

// Two-letter codes, then blank-separated lists, then UN M.49 numbers.
extern char const* const region_names[];
extern std::size_t const region_name_count;

// One row per encoding; its aliases are alias_names[first_alias, first_alias + alias_count).
struct encoding_row {
    char const* name;
    char const* jvm_name;
    std::uint16_t first_alias;
    std::uint16_t alias_count;
};
extern encoding_row const encoding_rows[];
extern std::size_t const encoding_row_count;
extern char const* const encoding_alias_names[];
extern std::size_t const encoding_alias_count;

// Sorted by language; a language's rows keep their order, which the searches rely on.
extern language_entry const language_rows[];
extern std::size_t const language_row_count;

extern char const* const canonical_locale_names[];
extern std::size_t const canonical_locale_name_count;

// A locale alias given in parts: language (or a whole name such as "C"), script, region and
// variant, each possibly empty; the separator goes between the script or language and the
// region.
struct locale_alias_row {
    char const* language;
    char const* script;
    char const* region;
    char const* variant;
    char separator;
    std::uint16_t canonical;
};
extern locale_alias_row const locale_alias_rows[];
extern std::size_t const locale_alias_row_count;

struct default_encoding_row {
    char const* locale;
    char const* encoding;
};
extern default_encoding_row const default_encoding_rows[];
extern std::size_t const default_encoding_row_count;

}  // namespace builtin
}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
