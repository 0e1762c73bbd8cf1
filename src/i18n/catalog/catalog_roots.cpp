// The resource roots of the message service: init, additional locations and their removal.

#include <fl/filesystem/directory_iterator.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/status_operations.hpp>
#include <fl/filesystem/upath_constant.hpp>
#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/catalog/message_catalog.hpp>
#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/catalog/catalog_map.hpp"
#include "i18n/catalog/catalog_roots.hpp"
#include "i18n/catalog/catalog_service.hpp"

#include <boost/thread/locks.hpp>

#include <algorithm>

namespace fl {
namespace i18n {

using catalog::resource_root_list;
using fl::filesystem::file_status;
using fl::filesystem::upath;

namespace {

upath resources_directory(ustring const& root) {
    upath path(root);
    path /= u"resources";
    return path;
}

bool is_directory(upath const& path) {
    return fl::filesystem::status(path).type() == file_status::directory_file;
}

// The resources directories of roots that have one, in order; any failure on the way counts as
// a root without one.
resource_root_list usable_roots(std::vector<ustring> const& roots, bool additional) {
    resource_root_list usable;
    for (ustring const& root : roots) {
        try {
            upath path = resources_directory(root);
            if (is_directory(path)) {
                usable.emplace_back(std::move(path), additional);
            }
        } catch (std::exception const&) {
        }
    }
    return usable;
}

bool has_root(resource_root_list const& roots, upath const& path, bool additional) {
    return std::any_of(roots.begin(), roots.end(), [&](auto const& root) {
        return root.second == additional && root.first == path;
    });
}

// Forgets the catalogs that the component directories of dir hold in English, in every locale.
void flush_english_catalogs(upath const& dir) {
    bool present = false;
    try {
        present = is_directory(dir);
    } catch (std::exception const&) {
    }
    if (!present) {
        fl::detail::throw_exception(MessageCatalog::ResDirNotPresent());
    }
    try {
        codecvt_ustring_to_ascii const to_ascii;
        ustring const current(fl::filesystem::upath_constant::CURRENT_DIRECTORY);
        ustring const parent(fl::filesystem::upath_constant::PARENT_DIRECTORY);
        for (fl::filesystem::directory_iterator it(dir), end; it != end; ++it) {
            ustring const name = it->filename();
            if (name == current || name == parent || it->type() != file_status::directory_file) {
                continue;
            }
            upath component(it->full_pathname(), false);
            std::string stem;
            try {
                stem = to_ascii.do_convert(component.stem().data(), component.stem().size());
            } catch (CvtInvalidCharacter const&) {
                continue;
            }
            component /= u"en";
            for (std::string const& catalog_name : list_catalog_names(component)) {
                MessageCatalog::FlushCatalogFromCache(CatalogID(stem + catalog_name));
            }
        }
    } catch (std::exception const& e) {
        fl::detail::throw_exception(MessageCatalog::ResPathRemovalUnknownError(e.what()));
    }
}

}  // namespace

std::vector<upath> catalog_resource_roots() {
    catalog::catalog_service const& service = catalog::service();
    std::vector<upath> paths;
    {
        std::lock_guard<std::mutex> const lock(service.roots_mutex);
        paths.reserve(service.roots.size());
        for (auto const& root : service.roots) {
            paths.push_back(root.first);
        }
    }
    if (paths.empty()) {
        fl::detail::throw_exception(MessageCatalog::MessageCatalogNotInitialized());
    }
    return paths;
}

bool MessageCatalog::MessageCatalogInit(std::vector<ustring> const& roots) {
    catalog::catalog_service& service = catalog::service();
    boost::unique_lock<boost::mutex> const lock(service.load_mutex);
    if (service.roots.empty() && roots.empty()) {
        fl::detail::throw_exception(MessageCatalogIncorrectRoot());
    }
    resource_root_list candidates = usable_roots(roots, false);
    if (!service.roots.empty()) {
        // A repeated init is harmless: it only answers whether it names the roots in use.
        return candidates == service.roots;
    }
    if (candidates.empty()) {
        fl::detail::throw_exception(MessageCatalogIncorrectRoot());
    }
    service.set_roots(std::move(candidates));
    return true;
}

bool MessageCatalog::MessageCatalogInit(ustring const& root) {
    return MessageCatalogInit(std::vector<ustring>{root});
}

void MessageCatalog::set_additional_resource_locations(std::vector<ustring> const& paths) {
    catalog::catalog_service& service = catalog::service();
    boost::unique_lock<boost::mutex> const lock(service.load_mutex);
    if (service.roots.empty()) {
        fl::detail::throw_exception(MessageCatalogNotInitialized());
    }
    if (paths.empty()) {
        fl::detail::throw_exception(MessageCatalogIncorrectRoot());
    }
    resource_root_list added = usable_roots(paths, true);
    if (added.size() != paths.size()) {
        fl::detail::throw_exception(MessageCatalogIncorrectRoot());
    }
    resource_root_list next = service.roots;
    next.insert(next.end(), added.begin(), added.end());
    service.set_roots(std::move(next));
}

void MessageCatalog::remove_additional_resource_location(ustring const& path) {
    if (path.empty()) {
        fl::detail::throw_exception(InvalidPathSupplied());
    }
    catalog::catalog_service& service = catalog::service();
    boost::unique_lock<boost::mutex> const lock(service.load_mutex);
    if (service.roots.empty()) {
        fl::detail::throw_exception(MessageCatalogNotInitialized());
    }
    upath const dir = resources_directory(path);
    if (!has_root(service.roots, dir, true)) {
        fl::detail::throw_exception(ResourcePathNotFound());
    }
    // Catalogs of a directory that is also a main root are still served from there.
    if (!has_root(service.roots, dir, false)) {
        flush_english_catalogs(dir);
    }
    resource_root_list next = service.roots;
    next.erase(std::remove_if(next.begin(), next.end(),
                              [&](auto const& root) { return root.second && root.first == dir; }),
               next.end());
    service.set_roots(std::move(next));
}

}  // namespace i18n
}  // namespace fl
