#include "commands.hpp"
#include "json_string.hpp"
#include "report.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <unicode/ucnv.h>

#include <cstring>
#include <set>
#include <string>

namespace ovi18n_tool {
namespace {

struct encoding_info {
    std::string name;
    std::string icu_name;
    std::vector<std::string> aliases;
    std::string jvm_name;  // empty when neither the database nor ICU has one
    bool ascii_compatible = false;
};

fl::i18n::lcmgmt::Lcdb const* database() {
    auto const* global = dynamic_cast<fl::i18n::OvLocaleImpl const*>(&fl::i18n::OvLocale::global());
    return global != nullptr ? global->database() : nullptr;
}

// ICU's aliases, less the names the entry already shows.
std::vector<std::string> icu_aliases(char const* name, std::string const& standard_name) {
    std::vector<std::string> aliases;
    UErrorCode status = U_ZERO_ERROR;
    std::uint16_t const count = ucnv_countAliases(name, &status);
    for (std::uint16_t i = 0; U_SUCCESS(status) && i < count; ++i) {
        char const* alias = ucnv_getAlias(name, i, &status);
        if (U_SUCCESS(status) && alias != nullptr && alias != standard_name &&
            std::strcmp(alias, name) != 0) {
            aliases.emplace_back(alias);
        }
    }
    return aliases;
}

// Stateful encodings can give the ASCII bytes another meaning after a shift, even when each
// ASCII character on its own comes through unchanged.
bool is_stateful(char const* name) {
    UErrorCode status = U_ZERO_ERROR;
    UConverter* converter = ucnv_open(name, &status);
    if (U_FAILURE(status)) {
        return true;
    }
    UConverterType const type = ucnv_getType(converter);
    ucnv_close(converter);
    return type == UCNV_ISO_2022 || type == UCNV_HZ || type == UCNV_UTF7 ||
           type == UCNV_IMAP_MAILBOX || type == UCNV_SCSU || type == UCNV_BOCU1 ||
           type == UCNV_LMBCS_1 || type == UCNV_ISCII || type == UCNV_EBCDIC_STATEFUL;
}

// The 128 ASCII characters must become the same 128 bytes, and come back from them.
bool is_ascii_compatible(std::string const& name, char const* icu_name) {
    std::string bytes;
    fl::i18n::ustring text;
    for (int c = 0; c < 0x80; ++c) {
        bytes += static_cast<char>(c);
        text += static_cast<char16_t>(c);
    }
    try {
        fl::i18n::codecvt_ustring_to_string const encoder(name, false);
        fl::i18n::codecvt_string_to_ustring const decoder(name, false);
        return encoder.do_convert(text.data(), text.size()) == bytes &&
               decoder.do_convert(bytes.data(), bytes.size()) == text && !is_stateful(icu_name);
    } catch (std::exception const&) {
        return false;
    }
}

std::vector<encoding_info> list_encodings() {
    std::vector<encoding_info> result;
    fl::i18n::lcmgmt::Lcdb const* db = database();
    std::set<std::string> seen;
    std::int32_t const count = ucnv_countAvailable();
    for (std::int32_t i = 0; i < count; ++i) {
        char const* icu_name = ucnv_getAvailableName(i);
        std::string name = fl::i18n::get_standard_encoding_name(icu_name);
        if (name.empty()) {
            name = icu_name;
        }
        // Several ICU variants (such as versions of UTF-16LE) share one standard name.
        if (!seen.insert(name).second) {
            continue;
        }
        try {
            // Only what the library's own converters accept counts as available.
            fl::i18n::codecvt_ustring_to_string const probe(name, false);
        } catch (std::exception const&) {
            continue;
        }
        encoding_info info{name, icu_name, icu_aliases(icu_name, name), {}, false};
        char const* jvm = db != nullptr ? db->jvm_encoding_name(name) : nullptr;
        if (jvm == nullptr) {
            UErrorCode status = U_ZERO_ERROR;
            jvm = ucnv_getStandardName(icu_name, "JAVA", &status);
        }
        info.jvm_name = jvm != nullptr ? jvm : "";
        info.ascii_compatible = is_ascii_compatible(name, icu_name);
        result.push_back(std::move(info));
    }
    return result;
}

void print_text(std::ostream& out, std::vector<encoding_info> const& encodings) {
    for (encoding_info const& e : encodings) {
        out << e.name << "  jvm: " << (e.jvm_name.empty() ? "-" : e.jvm_name)
            << (e.ascii_compatible ? "  ascii-compatible" : "") << "\n  aliases:";
        for (std::string const& alias : e.aliases) {
            out << " " << alias;
        }
        out << "\n";
    }
}

void print_json(std::ostream& out, std::vector<encoding_info> const& encodings) {
    report::entry list{"encodings", report::entry::kind::array, std::string(), {}};
    for (encoding_info const& e : encodings) {
        list.children.push_back(report::section(
            std::string(),
            {report::text("name", e.name), report::text("icu_name", e.icu_name),
             report::list("aliases", e.aliases),
             e.jvm_name.empty() ? report::null("jvm_name") : report::text("jvm_name", e.jvm_name),
             report::literal("ascii_compatible", e.ascii_compatible ? "true" : "false")}));
    }
    report r;
    r.entries = {std::move(list)};
    r.print_json(out);
}

}  // namespace

int run_encodings(std::vector<std::string> const& args, std::ostream& out) {
    bool json = false;
    for (std::string const& arg : args) {
        if (arg != "--json") {
            return usage_error("unknown argument '" + arg + "'");
        }
        json = true;
    }
    // The database of an installation may add names and JVM names to the built-in ones.
    fl::i18n::initialize();
    std::vector<encoding_info> const encodings = list_encodings();
    if (json) {
        print_json(out, encodings);
    } else {
        print_text(out, encodings);
    }
    return 0;
}

}  // namespace ovi18n_tool
