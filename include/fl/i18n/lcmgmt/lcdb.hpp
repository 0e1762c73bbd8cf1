#ifndef FL_I18N_LCMGMT_LCDB_HPP
#define FL_I18N_LCMGMT_LCDB_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/lcdb_entries.hpp>
#include <fl/i18n/lcmgmt/locale_name.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

// The locale and encoding database: built-in tables, extended by lcdata.xml at start-up. Every
// value is a pointer into static or pooled text, so lookups copy nothing. The manager's one is
// filled before it is published and never changes after, so it is read without locks.
class FL_I18N_API Lcdb {
public:
    using opt_data = std::pair<std::string, ustring>;

    // The answers of the modify operations; the values are part of the warnings start-up gives.
    enum modify_result : std::int32_t {
        done = 0,
        nothing_to_do = 1,
        empty_argument = 2,
        absent = 3,
        protected_entry = 4,  // also: the locale is unknown
    };
    // status() when filling the built-in tables failed.
    static constexpr std::int32_t builtin_tables_failed = 5;

    Lcdb();
    ~Lcdb();
    Lcdb(Lcdb const&) = delete;
    Lcdb& operator=(Lcdb const&) = delete;

    // 0, or builtin_tables_failed; the message is then the failure's what().
    std::int32_t status() const noexcept { return status_; }
    std::string const& status_message() const noexcept { return status_message_; }

    // --- Searches of the language table -------------------------------------------------
    // language and script lower case, region upper case; script and region may be empty.
    language_entry find_language_entry(std::string const& language, std::string const& script,
                                       std::string const& region) const;
    // The row for a parsed name, narrowed to the script and region the name asked for.
    language_entry find_locale_entry(locale_name_context const& name) const;
    // "language-Script_REGION" of a row, each part only when the row has it.
    std::string canonical_name_of(language_entry const& entry) const;
    // Names behind the indices of a row; null for none.
    char const* language_of(language_entry const& entry) const;
    char const* script_of(language_entry const& entry) const;
    char const* region_of(language_entry const& entry) const;
    char const* encoding_of(language_entry const& entry) const;

    // --- Locale lookups -------------------------------------------------------------------
    // Empty when the name is unknown.
    std::string canonical_locale_name(std::string const& name) const;
    // Never null for a non-empty name: an unknown locale has "UTF-8".
    char const* default_encoding_of(std::string const& name) const;
    // Looked up under the name, then under its canonical name.
    char const* xpg_name_of(std::string const& name) const;
    std::string region_alias_of(std::string const& name) const;
    // The stored pair, or an empty pair when nothing is stored.
    opt_data const& optional_data(std::string const& locale, std::string const& key) const;

    // The canonical name and the row's encoding (empty when none) of a name, as the database
    // sees it; nothing when the name resolves to no language.
    struct analysis {
        std::string canonical_name;
        std::string encoding;
    };
    bool analyse_locale_name(std::string const& name, analysis& out) const;

    // --- Encoding lookups -----------------------------------------------------------------
    std::shared_ptr<encoding_entry_context> find_encoding_entry(std::string const& name) const;
    char const* standard_encoding_name(std::string const& name) const;
    // The JVM name, or else the standard name; null when the encoding is unknown.
    char const* jvm_encoding_name(std::string const& name) const;

    // --- Raw reads, for comparing before a change -------------------------------------------
    char const* find_lc_alias(std::string const& name) const;
    char const* find_region_alias(std::string const& name) const;
    char const* find_default_encoding(std::string const& name) const;
    char const* find_xpg_name(std::string const& name) const;
    char const* find_compat_encoding(std::string const& name) const;

    // --- Modify operations ----------------------------------------------------------------
    std::int32_t modifyLcEntry(std::string const& name, std::string const& encoding,
                               std::string const& xpg_name);
    std::int32_t modifyDefEncoding(std::string const& name, std::string const& encoding);
    std::int32_t modifyXpgName(std::string const& name, std::string const& xpg_name);
    std::int32_t modifyLcAliasName(std::string const& name, std::string const& alias);
    std::int32_t modifyRegionAliasName(std::string const& name, std::string const& alias);
    std::int32_t modifyLcOptData(std::string const& locale, std::string const& key,
                                 std::string const& value, ustring const& uvalue);
    std::int32_t modifyEncodingDataEntry(std::string const& name, std::string const& jvm_name,
                                         std::string const& compat);
    std::int32_t modifyJvmName(std::string const& name, std::string const& jvm_name);
    std::int32_t modifyCompatEncoding(std::string const& name, std::string const& compat);
    std::int32_t modifyEncodingAlias(std::string const& name, std::string const& alias);

    std::int32_t removeLcAliasName(std::string const& name);
    std::int32_t removeRegionAliasName(std::string const& name);
    std::int32_t removeDefEncoding(std::string const& name);
    std::int32_t removeXpgName(std::string const& name);
    std::int32_t removeCompatEncoding(std::string const& name);
    std::int32_t removeJvmName(std::string const& name);
    std::int32_t removeEncoding(std::string const& name);
    std::int32_t removeLcOptData(std::string const& locale, std::string const& key);

    // A copy of text that lives as long as the database; equal strings share one copy.
    char const* intern(std::string const& text);

private:
    using name_map = std::unordered_map<std::string, char const*>;

    void fill_builtin_tables();
    std::string register_locale(std::string const& name);
    std::int32_t modify_alias(name_map& table, bool region_table, std::string const& name,
                              std::string const& alias);
    std::int32_t remove_alias(name_map& table, std::string const& name);
    std::shared_ptr<encoding_entry_context> find_or_create_encoding(std::string const& name);
    std::string opt_data_key(std::string const& locale, std::string const& key) const;

    std::vector<language_entry> const& language_rows(std::string const& language) const;

    // Each language's rows in table order, which the searches depend on.
    std::unordered_map<std::string, std::vector<language_entry>> language_entries_;
    std::unordered_map<std::string, std::uint16_t> script_index_;
    std::unordered_map<std::string, std::uint16_t> region_index_;
    std::unordered_map<std::string, std::shared_ptr<encoding_entry_context>> encodings_;
    name_map lc_aliases_;
    name_map region_aliases_;
    name_map default_encodings_;
    name_map xpg_names_;
    name_map compat_encodings_;
    std::unordered_map<std::string, opt_data> lc_opt_data_;
    std::unordered_map<std::string, std::unique_ptr<char[]>> string_pool_;
    std::int32_t status_ = 0;
    std::string status_message_;
    opt_data empty_opt_data_;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
