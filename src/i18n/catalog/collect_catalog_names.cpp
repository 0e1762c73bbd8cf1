#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/status_operations.hpp>
#include <fl/filesystem/upath_constant.hpp>

#include "i18n/catalog/catalog_map.hpp"
#include "i18n/catalog/expat_file_parser.hpp"
#include "i18n/catalog/meta_info_expat_event_handler.hpp"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace fl {
namespace i18n {
namespace {

using fl::filesystem::upath;
using fl::filesystem::upath_constant;

ustring const& separator() {
    static ustring const text = upath_constant::PATHNAME_SEPARATOR;
    return text;
}

// From a resource root to the map tree of the same installation: "../derived/share/resources/".
ustring const& derived_path() {
    static ustring const text = [] {
        ustring path;
        for (ustring const& element :
             {ustring(upath_constant::PARENT_DIRECTORY), ustring(u"derived"), ustring(u"share"),
              ustring(u"resources")}) {
            path += element + separator();
        }
        return path;
    }();
    return text;
}

ustring const map_file_name = u"catalog_map.xml";

// The maps that speak for prefix below one root: the nearest map on the way up from the
// prefix's own directory. A map in that directory brings every map below it; a map found
// higher up comes alone.
std::vector<upath> maps_for_prefix(upath const& root, ustring const& prefix) {
    ustring const base = root.pathname() + separator() + derived_path();
    ustring path = prefix;
    std::replace(path.begin(), path.end(), u':', separator().front());
    std::vector<upath> maps;
    bool cut = false;
    while (!path.empty()) {
        upath const dir(base + path, false);
        upath const map(dir.pathname() + separator() + map_file_name, false);
        if (fl::filesystem::exists(map)) {
            if (cut) {
                maps.push_back(map);
            } else {
                find_catalog_maps(dir, maps);
            }
            break;
        }
        std::size_t const last = path.rfind(separator());
        path.erase(last == ustring::npos ? 0 : last);
        cut = true;
    }
    return maps;
}

}  // namespace

boost::shared_ptr<boost::unordered_set<ustring>> collect_catalog_names(
    std::vector<upath> const& roots, ustring const& prefix) {
    auto names = boost::make_shared<boost::unordered_set<ustring>>();
    for (upath const& root : roots) {
        if (prefix.empty()) {
            // The components that have a map of their own.
            if (!fl::filesystem::exists(root)) {
                continue;
            }
            for (fl::filesystem::directory_iterator it(root), end; it != end; ++it) {
                ustring const name = it->filename();
                if (name == upath_constant::CURRENT_DIRECTORY ||
                    name == upath_constant::PARENT_DIRECTORY) {
                    continue;
                }
                ustring const component = name.substr(0, name.find(u':'));
                upath const map(root.pathname() + separator() + derived_path() + component +
                                    separator() + map_file_name,
                                false);
                if (fl::filesystem::exists(map)) {
                    names->insert(name);
                }
            }
            continue;
        }
        auto const handler = boost::make_shared<MetaInfoExpatEventHandler>(prefix, names);
        for (upath const& map : maps_for_prefix(root, prefix)) {
            // A broken map leaves what it gave before the fault.
            ExpatFileParser(map, handler).parse();
        }
    }
    return names;
}

}  // namespace i18n
}  // namespace fl
