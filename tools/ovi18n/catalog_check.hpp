#ifndef OVI18N_TOOL_CATALOG_CHECK_HPP
#define OVI18N_TOOL_CATALOG_CHECK_HPP

#include "catalog_file_reader.hpp"
#include "catalog_tree.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace ovi18n_tool {

// Errors are what makes a lookup fail or give a wrong text: a file the loader refuses, a
// catalog name or key nothing can ask for, a repeated key (the later text is silently dropped),
// an escape that empties the message, a text that is no valid pattern, holes that differ from
// the reference locale's, and a key missing from a translated catalog (keys have no fallback of
// their own). Warnings are what falls back or may surprise: a missing catalog (the reference
// locale's is used), a key or catalog the reference lacks, apostrophes that quoting changes, a
// document left open.
struct finding {
    bool error = false;
    std::string kind;  // a short fixed name, such as "duplicate-key"
    std::string file;
    file_location where;
    std::string message;
};

struct coverage_count {
    std::string name;  // a catalog, or a locale
    std::size_t translated = 0;
    std::size_t total = 0;
    double percent() const { return total == 0 ? 100.0 : 100.0 * translated / total; }
};

struct locale_coverage {
    coverage_count overall;
    std::vector<coverage_count> catalogs;  // the reference catalogs, in order
};

struct check_result {
    std::vector<finding> findings;
    std::vector<locale_coverage> coverage;  // every locale but the reference
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

check_result check_resources(std::string const& resources, resource_tree const& tree,
                             std::string const& reference);

// "file:line:column" or less, as compilers write it.
std::string location_text(finding const& f);

}  // namespace ovi18n_tool

#endif
