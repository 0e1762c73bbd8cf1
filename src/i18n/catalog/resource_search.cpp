#include "i18n/catalog/resource_search.hpp"

#include <fl/filesystem/status_operations.hpp>
#include <fl/filesystem/upath_constant.hpp>

namespace fl {
namespace i18n {
namespace {

using fl::filesystem::upath;

// The pattern with its first formatter replaced by a locale. No locale at all takes the
// formatter out, with the "_" that would have joined it: "name_%S.xml" gives "name.xml".
ustring substitute(ustring const& pattern, std::size_t at, std::size_t length,
                   ustring const& locale) {
    ustring const tail = pattern.substr(at + length);
    if (!locale.empty()) {
        return pattern.substr(0, at) + locale + tail;
    }
    std::size_t const head = (at > 0 && pattern[at - 1] == u'_') ? at - 1 : at;
    return pattern.substr(0, head) + tail;
}

}  // namespace

upath search_resource(ustring const& pattern, ustring const& formatter,
                      std::vector<ustring> const& locales, std::vector<upath> const* base_paths,
                      int& index) {
    if (pattern.empty()) {
        return upath();
    }
    std::size_t const at = pattern.find(formatter);
    if (at == ustring::npos) {
        return upath();
    }
    // The locale is the outer loop: a better locale in a later base beats a worse one in an
    // earlier base.
    for (ustring const& locale : locales) {
        ustring const text = substitute(pattern, at, formatter.size(), locale);
        if (base_paths == nullptr) {
            upath const candidate(text);
            if (fl::filesystem::exists(candidate)) {
                return candidate;
            }
        } else {
            for (upath const& base : *base_paths) {
                upath const candidate(base.pathname() +
                                      fl::filesystem::upath_constant::PATHNAME_SEPARATOR + text);
                if (fl::filesystem::exists(candidate)) {
                    return candidate;
                }
            }
        }
        ++index;
    }
    index = -1;
    return upath();
}

std::string narrow_locale_name(ustring const& name) {
    return std::string(name.begin(), name.end());
}

}  // namespace i18n
}  // namespace fl
