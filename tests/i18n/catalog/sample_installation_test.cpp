// The sample installation that the build tree carries next to bin/: every catalog loads, every
// translation has the English keys and holes, and the catalog maps name what is on disk.
#include "i18n/catalog/message_catalog_impl.hpp"

#include <gtest/gtest.h>
#include <unicode/msgfmt.h>
#include <unicode/strenum.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace fs = std::filesystem;
using fl::i18n::MessageCatalog;
using fl::i18n::MessageCatalogImpl;

namespace {

fs::path const root = std::getenv("OVI18N_SAMPLE_ROOT");
char const* const translations[] = {"de", "fr", "ja"};
// Left out on purpose, so that the French lookup of this catalog falls back to English.
std::string const missing = "fr:viewer:dialogs:print";

// Catalog name ("viewer:dialogs:export") by English file below resources/.
std::map<std::string, fs::path> english_catalogs() {
    std::map<std::string, fs::path> found;
    for (auto const& component : fs::directory_iterator(root / "resources")) {
        fs::path const en = component.path() / "en";
        for (auto const& file : fs::recursive_directory_iterator(en)) {
            if (file.path().extension() != ".xml")
                continue;
            fs::path const relative = fs::relative(file.path(), en);
            fs::path const stem = fs::path(relative).replace_extension();
            std::string name = component.path().filename().string();
            for (auto const& part : stem) {
                name += ":" + part.string();
            }
            found[name] = relative;
        }
    }
    return found;
}

std::unique_ptr<MessageCatalogImpl> load(std::string const& name, fs::path const& file,
                                         std::string const& locale) {
    return std::make_unique<MessageCatalogImpl>(
        name, fl::filesystem::upath(fl::i18n::ustring(file.u16string())), locale);
}

// The distinct hole names of a text, sorted, as the formatter counts them.
std::set<std::string> holes(fl::i18n::ustring const& text) {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString pattern(text.data(), static_cast<int32_t>(text.size()));
    icu::MessageFormat format(icu::MessageFormat::autoQuoteApostrophe(pattern, status),
                              icu::Locale("en", "US", "POSIX"), status);
    std::set<std::string> names;
    std::unique_ptr<icu::StringEnumeration> en(format.getFormatNames(status));
    while (icu::UnicodeString const* name = (U_SUCCESS(status) ? en->snext(status) : nullptr)) {
        std::string utf8;
        names.insert(name->toUTF8String(utf8));
    }
    EXPECT_TRUE(U_SUCCESS(status)) << u_errorName(status);
    return names;
}

TEST(SampleInstallationTest, TranslationsLoadWithTheEnglishKeysAndHoles) {
    auto const catalogs = english_catalogs();
    ASSERT_GE(catalogs.size(), 6U);
    for (auto const& [name, relative] : catalogs) {
        std::string const component = name.substr(0, name.find(':'));
        auto const dir = root / "resources" / component;
        auto const english = load(name, dir / "en" / relative, "en");
        auto keys = english->get_message_keys();
        std::sort(keys.begin(), keys.end());
        EXPECT_GE(keys.size(), 8U) << name;
        for (char const* locale : translations) {
            auto const file = dir / locale / relative;
            if (std::string(locale) + ":" + name == missing) {
                EXPECT_FALSE(fs::exists(file)) << file;
                continue;
            }
            auto const translated = load(name, file, locale);
            auto translated_keys = translated->get_message_keys();
            std::sort(translated_keys.begin(), translated_keys.end());
            EXPECT_EQ(translated_keys, keys) << file;
            for (auto const& key : keys) {
                auto const text = translated->get_message_text(key);
                auto const names = holes(text);
                EXPECT_EQ(names, holes(english->get_message_text(key))) << file << " " << key;
                // Every hole filled: nothing of the pattern syntax may be left.
                auto const formatted = MessageCatalog::GetFormattedMessage(
                    text, MessageCatalog::ArgList(names.size(), 3L));
                EXPECT_EQ(formatted.find(u'{'), fl::i18n::ustring::npos) << file << " " << key;
                EXPECT_FALSE(formatted.empty()) << file << " " << key;
            }
        }
    }
}

// Each component's maps list its catalogs and messages, and nothing that does not exist.
TEST(SampleInstallationTest, CatalogMapsNameTheEnglishCatalogsAndKeys) {
    std::set<std::string> on_disk;
    for (auto const& [name, relative] : english_catalogs()) {
        on_disk.insert(name);
        auto const file = root / "resources" / name.substr(0, name.find(':')) / "en" / relative;
        for (auto const& key : load(name, file, "en")->get_message_keys()) {
            on_disk.insert(name + ":" + key);
        }
    }
    std::set<std::string> listed;
    std::regex const key("<entry key=\"([^\"]+)\"");
    for (auto const& file : fs::recursive_directory_iterator(root / "derived/share/resources")) {
        if (file.path().filename() != "catalog_map.xml")
            continue;
        std::stringstream text;
        text << std::ifstream(file.path()).rdbuf();
        std::string const content = text.str();
        for (std::sregex_iterator it(content.begin(), content.end(), key), end; it != end; ++it) {
            listed.insert((*it)[1]);
        }
    }
    EXPECT_EQ(listed, on_disk);
}

}  // namespace
