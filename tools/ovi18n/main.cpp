#include "commands.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using ovi18n_tool::usage_error;

void print_help(std::ostream& out) {
    out << "usage: ovi18n <command> [options]\n"
           "\n"
           "commands:\n"
           "  locale [--json]                 explain the locale the library decided on\n"
           "  convert --from ENC --to ENC [--on-error MODE] [--jobs N] [--quiet] [FILE...]  "
           "re-encode text\n"
           "  encodings [--json]              the encodings the library can open\n"
           "  tz [ZONE] [--at TIME] [--json]  a time (ISO 8601) to and from UTC in a zone\n"
           "  ls PATH [PATTERN] [--json]      list a directory; PATTERN's only wildcard is *\n"
           "  check [--root DIR] [--html FILE] [--json]  lint an installation's catalogs (DIR "
           "alone will do); exit 1 on errors\n"
           "  catalogs [--root DIR] [--json]  the catalogs of each locale and their entries\n"
           "  message ID [ARG...] [--locale NAME] [--root DIR] [--json]  a formatted message and "
           "the file that served it\n"
           "  complete [PREFIX] [--root DIR] [--json]  what may follow a partly typed id\n"
           "  (convert's MODE: stop (default), replace, substitute=BYTES, escape-icu, "
           "escape-java,\n"
           "   escape-c, escape-xml-dec, escape-xml-hex, escape-unicode, escape-css2)\n"
           "  (convert's N: threads that decode, one a core by default)\n"
           "  (DIR is an installation root, holding resources/ and derived/; by default the one\n"
           "   this tool is installed in)\n"
           "\n"
           "options:\n"
           "  --version         print the library's version, path and build date\n"
           "  --help            print this help\n";
}

int run(std::vector<std::string> const& args) {
    if (args.empty()) {
        return usage_error("missing command");
    }
    std::string const& command = args[0];
    bool const is_option = command == "--help" || command == "-h" || command == "--version";
    if (is_option && args.size() > 1) {
        return usage_error("unknown argument '" + args[1] + "'");
    }
    if (command == "--help" || command == "-h") {
        print_help(std::cout);
        return 0;
    }
    if (command == "--version") {
        std::cout << "libovi18n " << libovi18n_version << "\n"
                  << "path: " << libovi18n_relative_path << "\n"
                  << "built: " << libovi18n_build_date << "\n";
        return 0;
    }
    if (command == "locale") {
        bool json = false;
        for (std::size_t i = 1; i < args.size(); ++i) {
            if (args[i] == "--json") {
                json = true;
            } else {
                return usage_error("unknown argument '" + args[i] + "'");
            }
        }
        return ovi18n_tool::run_locale(std::cout, json);
    }
    std::vector<std::string> const rest(args.begin() + 1, args.end());
    if (command == "convert") {
        return ovi18n_tool::run_convert(rest);
    }
    if (command == "encodings") {
        return ovi18n_tool::run_encodings(rest, std::cout);
    }
    if (command == "tz") {
        return ovi18n_tool::run_tz(rest, std::cout);
    }
    if (command == "ls") {
        return ovi18n_tool::run_ls(rest);
    }
    if (command == "check") {
        return ovi18n_tool::run_check(rest);
    }
    if (command == "catalogs") {
        return ovi18n_tool::run_catalogs(rest);
    }
    if (command == "message") {
        return ovi18n_tool::run_message(rest);
    }
    if (command == "complete") {
        return ovi18n_tool::run_complete(rest);
    }
    return usage_error("unknown command '" + command + "'");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (std::exception const& e) {
        // Start-up can fail on a malformed OVLOCALE_ variable; say so in one line, not an abort.
        std::cerr << "ovi18n: " << e.what() << "\n";
        return 1;
    }
}
