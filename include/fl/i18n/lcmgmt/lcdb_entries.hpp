#ifndef FL_I18N_LCMGMT_LCDB_ENTRIES_HPP
#define FL_I18N_LCMGMT_LCDB_ENTRIES_HPP

#include <fl/i18n/export.hpp>

#include <cstdint>
#include <string>

namespace fl {
namespace i18n {
namespace lcmgmt {

// Index value of a column a row doesn't have.
constexpr std::uint16_t no_index = 65535;

// One row of the language table: indices into the built-in name tables.
struct language_entry {
    std::uint16_t language = no_index;
    std::uint16_t script = no_index;
    std::uint16_t region = no_index;
    std::uint16_t encoding = no_index;
    // 1: the row wins when a query doesn't tell rows apart; 255 only on the null entry.
    std::uint8_t is_default = 255;

    bool is_null() const noexcept { return is_default == 255; }
};

// The one "not found" row.
inline language_entry null_language_entry() {
    return language_entry();
}

// An encoding as the database knows it; shared by the entry's own name and its aliases.
struct encoding_entry_context {
    char const* name = nullptr;
    // Null when the JVM knows the encoding by its standard name.
    char const* jvm_name = nullptr;
};

// Locale keys: "_" becomes "-" and ASCII letters become lower case, so "zh_TW" and "ZH-tw" meet.
FL_I18N_API std::string normalise_locale_key(std::string const& name);

// Encoding keys: ASCII lower case only.
FL_I18N_API std::string normalise_encoding_key(std::string const& name);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
