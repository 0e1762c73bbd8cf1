#include "environment_snapshot.hpp"

#include <cstdlib>
#include <vector>

namespace ovi18n_tool {

report::entry snapshot_locale_environment(std::string key) {
    static char const* const names[] = {"LANG",
                                        "LC_ALL",
                                        "LC_CTYPE",
                                        "LC_COLLATE",
                                        "LC_TIME",
                                        "LC_NUMERIC",
                                        "LC_MONETARY",
                                        "LC_MESSAGES",
                                        "LC_PAPER",
                                        "LC_NAME",
                                        "LC_ADDRESS",
                                        "LC_TELEPHONE",
                                        "LC_MEASUREMENT",
                                        "LC_IDENTIFICATION",
                                        "OVLOCALE_LCDATA_PATH",
                                        "OVLOCALE_LCDATA_FILENAME",
                                        "OVLOCALE_L10N_CONTROL",
                                        "OVLOCALE_USE_UTF8_AS_DEFAULT",
                                        "OVLOCALE_TERMINAL_ENCODING"};
    std::vector<report::entry> variables;
    for (char const* name : names) {
        // The raw bytes, not the library's decoding: before start-up no encoding is known yet.
        variables.push_back(report::text_or_null(name, std::getenv(name)));
    }
    return report::section(std::move(key), std::move(variables));
}

}  // namespace ovi18n_tool
