#include "i18n/lcmgmt/lcdb_event_handler.hpp"

#include "common/ascii.hpp"

#include <cstring>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

enum element_id : int {
    lcdata = 1,
    locale = 2,
    alias = 3,
    region_alias = 4,
    l10n = 5,
    codeset = 6,
    encoding = 7,
    encoding_alias = 8
};

constexpr int stop = EventValidator::refused;

// An attribute given with an empty value counts as absent, so both give the empty string.
std::string attribute(char const** attributes, char const* name) {
    for (char const** pair = attributes; pair != nullptr && *pair != nullptr; pair += 2) {
        if (std::strcmp(pair[0], name) == 0) {
            return pair[1];
        }
    }
    return std::string();
}

// A value given in the file differs from the stored one; an empty value asks for no change.
bool differs(std::string const& given, char const* stored) {
    return !given.empty() && (stored == nullptr || given != stored);
}

}  // namespace

LcdbEventHandler::LcdbEventHandler(Lcdb& database, std::vector<std::string>& warnings)
    : database_(database), warnings_(warnings) {
    validator_.add("lcdata", lcdata, "");
    validator_.add("locale", locale, "lcdata");
    validator_.add("alias", alias, "locale");
    validator_.add("region_alias", region_alias, "locale");
    validator_.add("l10n", l10n, "locale");
    validator_.add("codeset", codeset, "lcdata");
    validator_.add("encoding", encoding, "codeset");
    validator_.add("encoding_alias", encoding_alias, "encoding");
}

int LcdbEventHandler::xmlDecl(char const*, char const* declared, int) {
    std::string const name = declared == nullptr ? std::string() : declared;
    return detail::to_ascii_lower(name) == "utf-8" ? 0 : stop;
}

int LcdbEventHandler::startElement(char const* name, char const** attributes) {
    switch (validator_.start(name)) {
        case lcdata:
        case codeset:
            return 0;
        case locale:
            return start_locale(attributes);
        case alias:
            return start_alias(attributes, false);
        case region_alias:
            return start_alias(attributes, true);
        case l10n:
            return start_l10n(attributes);
        case encoding:
            return start_encoding(attributes);
        case encoding_alias:
            return start_encoding_alias(attributes);
        default:
            return stop;
    }
}

int LcdbEventHandler::characterData(char const*, int) {
    return 0;
}

int LcdbEventHandler::endElement(char const* name) {
    return validator_.end(name);
}

char const* LcdbEventHandler::parserEncoding() const {
    return encoding_.c_str();
}

int LcdbEventHandler::start_locale(char const** attributes) {
    // Nothing may carry over from the previous locale element.
    locale_ = {};
    locale_.name = attribute(attributes, "name");
    locale_.encoding = attribute(attributes, "encoding");
    locale_.xpg_name = attribute(attributes, "xpg_name");
    locale_.disable_user_locale = attribute(attributes, "disable_user_locale");
    if (locale_.name.empty()) {
        return stop;
    }
    addLcName(locale_.name, locale_.encoding, locale_.xpg_name);
    return 0;
}

int LcdbEventHandler::start_alias(char const** attributes, bool region_table) {
    std::string const name = attribute(attributes, "name");
    if (name.empty()) {
        return stop;
    }
    addAliasName(locale_.name, name, region_table);
    return 0;
}

int LcdbEventHandler::start_l10n(char const** attributes) {
    std::string const disable = attribute(attributes, "disable");
    if (disable.empty()) {
        return stop;
    }
    addL10nFlag(locale_.name, disable);
    return 0;
}

int LcdbEventHandler::start_encoding(char const** attributes) {
    encoding_name_.clear();
    std::string const name = attribute(attributes, "name");
    std::string const jvm = attribute(attributes, "jvm_encoding");
    std::string const compat = attribute(attributes, "compat");
    if (name.empty()) {
        return stop;
    }
    encoding_name_ = name;
    addEncodingName(name, jvm, compat);
    return 0;
}

int LcdbEventHandler::start_encoding_alias(char const** attributes) {
    std::string const name = attribute(attributes, "name");
    if (name.empty() || encoding_name_.empty()) {
        return stop;
    }
    addEncodingAlias(encoding_name_, name);
    return 0;
}

void LcdbEventHandler::addLcName(std::string const& name, std::string const& encoding,
                                 std::string const& xpg_name) {
    bool encoding_changed = false;
    if (database_.find_lc_alias(name) != nullptr) {
        encoding_changed = differs(encoding, database_.find_default_encoding(name));
    } else {
        Lcdb::analysis found;
        encoding_changed = database_.analyse_locale_name(name, found)
                               ? differs(encoding, found.encoding.c_str())
                               : !encoding.empty();
    }
    bool const xpg_changed = differs(xpg_name, database_.find_xpg_name(name));

    if (encoding_changed && xpg_changed) {
        warn_unless_done("modifyLocaleDatabase:addLcName:modifyLcEntry;",
                         database_.modifyLcEntry(name, encoding, xpg_name),
                         {name, encoding, xpg_name});
    } else if (encoding_changed) {
        warn_unless_done("modifyLocaleDatabase:addLcName:modifyDefEncoding;",
                         database_.modifyDefEncoding(name, encoding), {name, encoding});
    } else if (xpg_changed) {
        warn_unless_done("modifyLocaleDatabase:addLcName:modifyXpgName;",
                         database_.modifyXpgName(name, xpg_name), {name, xpg_name});
    }
}

void LcdbEventHandler::addAliasName(std::string const& name, std::string const& alias,
                                    bool region_table) {
    char const* current =
        region_table ? database_.find_region_alias(alias) : database_.find_lc_alias(alias);
    if (current != nullptr && name == current) {
        return;
    }
    std::int32_t const code = region_table ? database_.modifyRegionAliasName(name, alias)
                                           : database_.modifyLcAliasName(name, alias);
    warn_unless_done("modifyLocaleDatabase:addAliasName:modifyLcAliasName;", code, {name, alias});
}

void LcdbEventHandler::addL10nFlag(std::string const& name, std::string const& disable) {
    if (database_.optional_data(name, "disable_l10n").first == disable) {
        return;
    }
    warn_unless_done("modifyLocaleDatabase:addL10nFlag:modifyLcOptData;",
                     database_.modifyLcOptData(name, "disable_l10n", disable, ustring()),
                     {name, disable});
}

void LcdbEventHandler::addEncodingName(std::string const& name, std::string const& jvm,
                                       std::string const& compat) {
    auto const entry = database_.find_encoding_entry(name);
    bool const jvm_changed = differs(jvm, entry != nullptr ? entry->jvm_name : nullptr);
    bool const compat_changed = differs(compat, database_.find_compat_encoding(name));

    if (jvm_changed && compat_changed) {
        warn_unless_done("modifyLocaleDatabase:addEncodingName:modifyEncodingDataEntry;",
                         database_.modifyEncodingDataEntry(name, jvm, compat), {name, jvm, compat});
    } else if (jvm_changed) {
        warn_unless_done("modifyLocaleDatabase:addEncodingName:modifyJvmName;",
                         database_.modifyJvmName(name, jvm), {name, jvm});
    } else if (compat_changed) {
        warn_unless_done("modifyLocaleDatabase:addEncodingName:modifyCompatEncoding;",
                         database_.modifyCompatEncoding(name, compat), {name, compat});
    }
}

void LcdbEventHandler::addEncodingAlias(std::string const& name, std::string const& alias) {
    auto const entry = database_.find_encoding_entry(alias);
    if (entry != nullptr && entry->name != nullptr && name == entry->name) {
        return;
    }
    warn_unless_done("modifyLocaleDatabase:addEncodingAlias:modifyEncodingAlias;",
                     database_.modifyEncodingAlias(name, alias), {name, alias});
}

void LcdbEventHandler::warn_unless_done(char const* prefix, std::int32_t code,
                                        std::vector<std::string> const& arguments) {
    if (code == Lcdb::done) {
        return;
    }
    std::string warning = prefix + std::to_string(code);
    for (std::string const& argument : arguments) {
        warning += ';';
        warning += argument;
    }
    warnings_.push_back(warning);
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
