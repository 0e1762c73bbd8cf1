#include <fl/i18n/lcmgmt/fallback_locales.hpp>

#include "i18n/lcmgmt/fallback_locales.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

template <class String>
std::vector<String> fallback_list(String const& name, String const& last) {
    std::vector<String> list{name};
    // Only the last part goes: a script stays, as in sr-Latn_BA, sr-Latn.
    auto const cut = name.rfind(typename String::value_type('_'));
    if (cut != String::npos) {
        list.push_back(name.substr(0, cut));
    }
    if (list.back() != last) {
        list.push_back(last);
    }
    return list;
}

ustring const& classic_language() {
    static ustring const language =
        widen_ascii(OvLocale::classic().getLanguage(OvLocale::messages));
    return language;
}

}  // namespace

ustring widen_ascii(std::string const& text) {
    ustring wide;
    wide.reserve(text.size());
    for (char c : text) {
        wide.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    }
    return wide;
}

std::vector<ustring> fallback_locale_names(ustring const& name, ustring const& last) {
    return fallback_list(name, last);
}

std::vector<std::string> fallback_locale_names(std::string const& name, std::string const& last) {
    return fallback_list(name, last);
}

std::vector<std::string> fallback_locale_names(OvLocale const& locale, std::string const& last) {
    return fallback_list(locale.getLocaleName(OvLocale::messages), last);
}

}  // namespace lcmgmt

std::vector<ustring> get_fallback_locales(OvLocale const& locale) {
    return lcmgmt::fallback_locale_names(
        lcmgmt::widen_ascii(locale.getLocaleName(OvLocale::messages)), lcmgmt::classic_language());
}

std::vector<ustring> get_fallback_locales_with_empty_default(OvLocale const& locale) {
    return lcmgmt::fallback_locale_names(
        lcmgmt::widen_ascii(locale.getLocaleName(OvLocale::messages)), ustring());
}

}  // namespace i18n
}  // namespace fl
