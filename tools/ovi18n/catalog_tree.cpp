#include "catalog_tree.hpp"

#include "utf8_text.hpp"

#include <fl/filesystem/path_resolution.hpp>
#include <fl/i18n.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <set>
#include <tuple>

namespace ovi18n_tool {
namespace {

namespace stdfs = std::filesystem;

std::vector<stdfs::path> sorted_children(stdfs::path const& dir) {
    std::vector<stdfs::path> children;
    std::error_code ec;
    for (stdfs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
        children.push_back(it->path());
    }
    std::sort(children.begin(), children.end());
    return children;
}

bool valid_catalog_name(std::string const& name) {
    try {
        fl::i18n::CatalogID const id(name);
        return true;
    } catch (fl::i18n::CatalogID::badCatalogIDException const&) {
        return false;
    }
}

// The catalogs below one locale directory; `prefix` is the name so far, such as "C".
void scan_locale(stdfs::path const& dir, std::string const& prefix, std::string const& locale,
                 resource_tree& tree) {
    for (stdfs::path const& child : sorted_children(dir)) {
        std::error_code ec;
        if (stdfs::is_directory(child, ec)) {
            scan_locale(child, prefix + ":" + child.filename().string(), locale, tree);
        } else if (child.extension() == ".xml" && stdfs::is_regular_file(child, ec)) {
            std::string const name = prefix + ":" + child.stem().string();
            if (valid_catalog_name(name)) {
                tree.files.push_back({name, locale, child.string()});
            } else {
                tree.bad_names.push_back(child.string());
            }
        }
    }
}

}  // namespace

std::string installation_root(std::string const& given) {
    return given.empty() ? to_utf8(fl::filesystem::get_install_path()) : given;
}

std::string resources_directory(std::string const& root) {
    std::string const resources = (stdfs::path(root) / "resources").string();
    std::error_code ec;
    if (!stdfs::is_directory(resources, ec)) {
        std::cerr << "ovi18n: no resources directory in '" << root << "'\n";
        return std::string();
    }
    return resources;
}

resource_tree scan_resource_tree(std::string const& resources) {
    resource_tree tree;
    std::set<std::string> locales;
    for (stdfs::path const& component : sorted_children(resources)) {
        std::error_code ec;
        if (!stdfs::is_directory(component, ec)) {
            continue;
        }
        for (stdfs::path const& locale : sorted_children(component)) {
            if (stdfs::is_directory(locale, ec)) {
                locales.insert(locale.filename().string());
                scan_locale(locale, component.filename().string(), locale.filename().string(),
                            tree);
            }
        }
    }
    std::sort(tree.files.begin(), tree.files.end(), [](auto const& a, auto const& b) {
        return std::tie(a.catalog, a.locale) < std::tie(b.catalog, b.locale);
    });
    tree.locales.assign(locales.begin(), locales.end());
    return tree;
}

std::string catalog_path(std::string const& resources, std::string const& catalog,
                         std::string const& locale) {
    std::filesystem::path path(resources);
    std::size_t start = 0;
    for (std::size_t part = 0;; ++part) {
        std::size_t const colon = catalog.find(':', start);
        std::string const name = catalog.substr(start, colon - start);
        if (colon == std::string::npos) {
            return (path / (name + ".xml")).string();
        }
        path /= name;
        if (part == 0) {
            path /= locale;
        }
        start = colon + 1;
    }
}

std::string reference_locale() {
    return fl::i18n::OvLocale::classic().getLanguage(fl::i18n::OvLocale::messages);
}

}  // namespace ovi18n_tool
