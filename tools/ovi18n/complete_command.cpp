#include "catalog_service_root.hpp"
#include "commands.hpp"
#include "report.hpp"
#include "terminal_text.hpp"
#include "usage_error.hpp"
#include "utf8_text.hpp"

#include <fl/i18n.hpp>

#include <iostream>

namespace ovi18n_tool {

int run_complete(std::vector<std::string> const& args) {
    std::string root;
    bool json = false;
    std::vector<std::string> operands;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--json") {
            json = true;
        } else if (args[i] == "--root" && i + 1 < args.size() && !args[i + 1].empty()) {
            root = args[++i];
        } else if (args[i].rfind("--", 0) == 0 || operands.size() == 1) {
            return usage_error("unknown argument '" + args[i] + "'");
        } else {
            operands.push_back(args[i]);
        }
    }
    if (start_catalog_service(root).empty()) {
        return 1;
    }
    // No operand asks for everything at the top level, as an empty input does.
    std::string const input = operands.empty() ? std::string() : operands[0];
    fl::i18n::MessageIdCompletions const found =
        fl::i18n::getMessageIdCompletions(from_utf8(input));
    std::vector<std::string> completions;
    for (fl::i18n::ustring const& c : found.completions) {
        completions.push_back(to_utf8(c));
    }
    if (json) {
        report r;
        r.entries = {report::text("input", input),
                     report::literal("start_offset", std::to_string(found.start_offset)),
                     report::list("completions", completions)};
        r.print_json(std::cout);
        return 0;
    }
    std::cout << "offset: " << found.start_offset << "\n";
    for (std::string const& c : completions) {
        std::cout << terminal_text(c) << "\n";
    }
    return 0;
}

}  // namespace ovi18n_tool
