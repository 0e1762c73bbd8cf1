#include "commands.hpp"

#include <fl/i18n.hpp>

#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace {

void print_help(std::ostream& out) {
    out << "usage: ovi18n <command> [options]\n"
           "\n"
           "commands:\n"
           "  locale [--json]   start the library and report the locale it decided on\n"
           "\n"
           "options:\n"
           "  --version         print the library's version, path and build date\n"
           "  --help            print this help\n";
}

int usage_error(std::string const& what) {
    std::cerr << "ovi18n: " << what << " (try 'ovi18n --help')\n";
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty()) {
        return usage_error("missing command");
    }
    std::string const& command = args[0];
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
    return usage_error("unknown command '" + command + "'");
}
