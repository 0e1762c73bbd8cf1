#include "catalog_check.hpp"

#include "message_pattern.hpp"

#include <fl/i18n.hpp>

#include <filesystem>
#include <map>
#include <utility>

namespace ovi18n_tool {
namespace {

struct loaded_catalog {
    catalog_file_ref const* ref = nullptr;
    catalog_file file;
    std::map<std::string, catalog_entry const*> first;  // the entry the library keeps per key
};

using catalog_key = std::pair<std::string, std::string>;  // catalog, locale

// A key is asked for as the last token of a message identifier.
bool valid_key(std::string const& key) {
    if (key.find(':') != std::string::npos) {
        return false;
    }
    try {
        fl::i18n::MessageID const id("a:b:" + key);
        return true;
    } catch (fl::i18n::MessageID::badMessageIDException const&) {
        return false;
    }
}

std::string joined(std::vector<std::string> const& holes) {
    std::string text;
    for (std::string const& h : holes) {
        text += (text.empty() ? "{" : " {") + h + "}";
    }
    return text.empty() ? "none" : text;
}

class checker {
public:
    checker(std::string const& resources, resource_tree const& tree, std::string const& reference)
        : resources_(resources), tree_(tree), reference_(reference) {}

    check_result run() {
        for (std::string const& path : tree_.bad_names) {
            add(true, "bad-catalog-name", path, {},
                "the path makes no valid catalog name, so no lookup can reach this file");
        }
        for (catalog_file_ref const& ref : tree_.files) {
            load(ref);
        }
        for (std::string const& locale : tree_.locales) {
            if (locale != reference_) {
                compare(locale);
            }
        }
        return std::move(result_);
    }

private:
    void add(bool error, char const* kind, std::string const& file, file_location where,
             std::string message) {
        result_.findings.push_back({error, kind, file, where, std::move(message)});
        ++(error ? result_.errors : result_.warnings);
    }

    void load(catalog_file_ref const& ref) {
        loaded_catalog& c = catalogs_[{ref.catalog, ref.locale}];
        c.ref = &ref;
        c.file = read_catalog_file(ref.path);
        if (!c.file.loaded) {
            add(true, "unreadable", ref.path, c.file.error_at,
                "the catalog doesn't load: " + c.file.error);
            return;
        }
        if (c.file.unclosed) {
            add(false, "unclosed", ref.path, {},
                "the document is not closed; it passes only because the file ends in a line "
                "break, and an entry still open is dropped");
        }
        for (catalog_entry const& e : c.file.entries) {
            check_entry(c, e);
        }
    }

    void check_entry(loaded_catalog& c, catalog_entry const& e) {
        std::string const& path = c.ref->path;
        auto const earlier = c.first.find(e.key);
        if (earlier != c.first.end()) {
            add(true, "duplicate-key", path, e.where,
                "key '" + e.key + "' is given again; the text at line " +
                    std::to_string(earlier->second->where.line) + " is the one used");
            return;
        }
        c.first.emplace(e.key, &e);
        if (!valid_key(e.key)) {
            add(true, "bad-key", path, e.where,
                "key '" + e.key + "' is no identifier, so no message id can name it");
        }
        if (e.escape_failed) {
            add(true, "bad-escape", path, e.where,
                "a backslash escape in '" + e.key + "' doesn't resolve, so its text is empty");
        }
        message_pattern const pattern = read_message_pattern(e.text);
        if (!pattern.valid) {
            add(true, "bad-pattern", path, e.where,
                "the text of '" + e.key + "' is no valid message pattern");
        } else if (pattern.apostrophes_changed) {
            add(false, "apostrophe", path, e.where,
                "an apostrophe in '" + e.key +
                    "' doesn't come out as written: it quotes a brace or is doubled");
        }
    }

    void compare(std::string const& locale) {
        locale_coverage coverage;
        coverage.overall.name = locale;
        for (auto const& [id, original] : catalogs_) {
            if (id.second != reference_ || !original.file.loaded) {
                continue;
            }
            coverage_count count{id.first, 0, original.first.size()};
            auto const found = catalogs_.find({id.first, locale});
            if (found == catalogs_.end()) {
                add(false, "missing-catalog", catalog_path(resources_, id.first, locale), {},
                    "catalog " + id.first + " has no " + locale + " file; lookups fall back");
            } else if (found->second.file.loaded) {
                count.translated = compare_keys(original, found->second, locale);
            }
            coverage.overall.translated += count.translated;
            coverage.overall.total += count.total;
            coverage.catalogs.push_back(count);
        }
        for (auto const& [id, translation] : catalogs_) {
            if (id.second == locale && catalogs_.count({id.first, reference_}) == 0) {
                add(false, "no-original-catalog", translation.ref->path, {},
                    "catalog " + id.first + " has no " + reference_ + " original");
            }
        }
        result_.coverage.push_back(std::move(coverage));
    }

    std::size_t compare_keys(loaded_catalog const& original, loaded_catalog const& translation,
                             std::string const& locale) {
        std::size_t translated = 0;
        std::string const& path = translation.ref->path;
        for (auto const& [key, source] : original.first) {
            auto const found = translation.first.find(key);
            if (found == translation.first.end()) {
                add(true, "missing-key", path, {},
                    "key '" + key + "' has no " + locale +
                        " text, and a key falls back on "
                        "nothing: its lookup fails");
                continue;
            }
            ++translated;
            message_pattern const want = read_message_pattern(source->text);
            message_pattern const have = read_message_pattern(found->second->text);
            if (want.valid && have.valid && want.holes != have.holes) {
                add(true, "holes-differ", path, found->second->where,
                    "'" + key + "' has the holes " + joined(have.holes) + ", the " + reference_ +
                        " text " + joined(want.holes));
            }
        }
        for (auto const& [key, entry] : translation.first) {
            if (original.first.count(key) == 0) {
                add(false, "no-original", path, entry->where,
                    "key '" + key + "' has no " + reference_ + " original");
            }
        }
        return translated;
    }

    std::string const& resources_;
    resource_tree const& tree_;
    std::string const& reference_;
    std::map<catalog_key, loaded_catalog> catalogs_;
    check_result result_;
};

}  // namespace

check_result check_resources(std::string const& resources, resource_tree const& tree,
                             std::string const& reference) {
    return checker(resources, tree, reference).run();
}

std::string location_text(finding const& f) {
    std::string text = f.file;
    if (f.where.line != 0) {
        text += ":" + std::to_string(f.where.line) + ":" + std::to_string(f.where.column);
    }
    return text;
}

}  // namespace ovi18n_tool
