#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/catalog/message_id_completion.hpp>
#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/lcctype/string_compare.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/catalog/catalog_map.hpp"
#include "i18n/catalog/catalog_roots.hpp"

#include <boost/numeric/conversion/cast.hpp>

#include <algorithm>

namespace fl {
namespace i18n {

namespace {

// Whether the first units of candidate, as many as typed has, equal typed without regard to
// case; an empty typed text matches everything.
bool starts_like(ustring const& candidate, ustring const& typed) {
    if (typed.empty()) {
        return true;
    }
    std::size_t const length = std::min(candidate.size(), typed.size());
    return lcctype::compare(candidate.data(), length, typed.data(), typed.size(),
                            case_insensitive()) == 0;
}

// The product's legacy two-part catalog is offered under the bare product name, which is how
// users type it.
ustring offered_name(ustring const& full) {
    return full == u"VELMOR:legacy_two_part" ? ustring(u"VELMOR") : full;
}

void add_keys(MessageIdCompletions& result, ustring const& catalog_part, ustring const& key_part) {
    try {
        std::string const typed_catalog =
            codecvt_ustring_to_ascii().do_convert(catalog_part.data(), catalog_part.size());
        CatalogID const id(resource_core::makeInternalCatalogName(typed_catalog));
        codecvt_ascii_to_ustring const widen;
        auto const catalog = MessageCatalog::GetMessageCatalog(id, OvLocale::global());
        for (std::string const& key : catalog->get_message_keys()) {
            ustring wide = widen.do_convert(key.data(), key.size());
            if (starts_like(wide, key_part)) {
                result.completions.push_back(std::move(wide));
            }
        }
    } catch (MessageCatalog::MessageCatalogLoadFailed const&) {
    } catch (CatalogID::badCatalogIDException const&) {
    }
}

}  // namespace

MessageIdCompletions getMessageIdCompletions(ustring const& input) {
    MessageIdCompletions result;
    try {
        std::size_t const colon = input.rfind(u':');
        bool const has_colon = colon != ustring::npos;
        ustring const catalog_part = has_colon ? input.substr(0, colon) : ustring();
        ustring const key_part = has_colon ? input.substr(colon + 1) : input;
        ustring const typed_prefix = has_colon ? input.substr(0, colon + 1) : ustring();
        std::size_t const offset = has_colon ? colon + 1 : 0;
        result.start_offset = boost::numeric_cast<int>(offset);

        auto const names = collect_catalog_names(catalog_resource_roots(), catalog_part);
        for (ustring const& name : *names) {
            ustring const full = offered_name(typed_prefix + name);
            if (starts_like(full, input)) {
                result.completions.push_back(full.substr(offset) + u":");
            }
        }
        if (has_colon) {
            add_keys(result, catalog_part, key_part);
        }
    } catch (...) {
        return MessageIdCompletions();
    }
    return result;
}

}  // namespace i18n
}  // namespace fl
