#include "commands.hpp"
#include "json_string.hpp"
#include "usage_error.hpp"

#include <fl/filesystem.hpp>
#include <fl/i18n.hpp>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace ovi18n_tool {
namespace {

namespace fs = fl::filesystem;

char const* type_name(unsigned int type) {
    switch (type) {
        case fs::file_status::regular_file:
            return "regular";
        case fs::file_status::directory_file:
            return "directory";
        case fs::file_status::symlink_file:
            return "symlink";
        case fs::file_status::fifo_file:
            return "fifo";
        case fs::file_status::character_file:
            return "character";
        case fs::file_status::block_file:
            return "block";
        case fs::file_status::socket_file:
            return "socket";
        case fs::file_status::file_not_found:
            return "not_found";
        default:
            return "unknown";
    }
}

struct listed_entry {
    std::string name;  // decoded, in the default encoding
    std::string type;
    std::string raw;  // the bytes as the system gave them, only when they don't decode
};

bool decodes(std::string const& bytes) {
    try {
        fs::codecvt_filesystem_to_ustring const strict(false);
        strict.do_convert(bytes.data(), bytes.size());
        return true;
    } catch (fs::FsysExceptionBase const&) {
        return false;
    }
}

// Control bytes and backslashes always become \xHH; bytes above 0x7F only when asked, so a
// readable name stays readable.
std::string escaped(std::string const& bytes, bool escape_high) {
    std::string text;
    for (unsigned char const c : bytes) {
        bool const plain = c >= 0x20 && c != 0x7F && c != '\\';
        if (plain && (c < 0x80 || !escape_high)) {
            text += static_cast<char>(c);
        } else {
            char hex[5];
            std::snprintf(hex, sizeof hex, "\\x%02X", c);
            text += hex;
        }
    }
    return text;
}

// A link's type says where it leads; a loop or a denied target shows the failure instead.
std::string describe_type(fs::upath_directory_entry const& entry) {
    unsigned int const type = entry.type();
    if (type != fs::file_status::symlink_file) {
        return type_name(type);
    }
    try {
        return std::string("symlink -> ") + type_name(entry.target_type());
    } catch (fs::FsysExceptionBase const& e) {
        return std::string("symlink -> ") + e.what();
    }
}

std::vector<listed_entry> read_entries(fs::directory_iterator it) {
    std::vector<listed_entry> entries;
    for (; it != fs::directory_iterator(); ++it) {
        std::string const raw = fs::detail::raw_filename(*it);
        entries.push_back({fl::i18n::to_string(it->filename()), describe_type(*it),
                           decodes(raw) ? std::string() : raw});
    }
    return entries;
}

void print_text(std::ostream& out, std::vector<listed_entry> const& entries) {
    for (auto const& e : entries) {
        out << e.type << '\t' << escaped(e.name, false);
        if (!e.raw.empty()) {
            out << "\t(bytes: " << escaped(e.raw, true) << ')';
        }
        out << '\n';
    }
}

void print_json(std::ostream& out, std::vector<listed_entry> const& entries) {
    out << "[";
    char const* separator = "\n";
    for (auto const& e : entries) {
        out << separator << "  {\"name\": " << json_quote(e.name)
            << ", \"type\": " << json_quote(e.type);
        if (!e.raw.empty()) {
            out << ", \"raw\": " << json_quote(escaped(e.raw, true));
        }
        out << "}";
        separator = ",\n";
    }
    out << "\n]\n";
}

int list_directory(std::ostream& out, std::ostream& err, std::string const& path,
                   std::string const& pattern, bool json) {
    fl::i18n::initialize();
    fl::i18n::ustring const directory = fl::i18n::to_ustring(path);
    std::vector<listed_entry> entries;
    try {
        entries = pattern.empty()
                      ? read_entries(fs::directory_iterator(directory))
                      : read_entries(fs::directory_iterator(
                            directory,
                            fs::wildcard_pattern_string_context(fl::i18n::to_ustring(pattern))));
    } catch (fs::FsysExceptionBase const& e) {
        err << "ovi18n: cannot read '" << path << "': " << e.what() << "\n";
        return 1;
    }
    if (json) {
        print_json(out, entries);
    } else {
        print_text(out, entries);
    }
    return 0;
}

}  // namespace

int run_ls(std::vector<std::string> const& args) {
    std::vector<std::string> operands;
    bool json = false;
    for (std::string const& arg : args) {
        if (arg == "--json") {
            json = true;
        } else if (arg.rfind("--", 0) == 0 || operands.size() == 2) {
            return usage_error("unknown argument '" + arg + "'");
        } else {
            operands.push_back(arg);
        }
    }
    if (operands.empty() || operands[0].empty()) {
        return usage_error("ls needs a directory");
    }
    // The library refuses these too, but only a usage error tells the user why.
    if (operands.size() == 2 &&
        (operands[1].empty() || operands[1].find('/') != std::string::npos)) {
        return usage_error("a pattern is one non-empty name without '/'");
    }
    return list_directory(std::cout, std::cerr, operands[0],
                          operands.size() == 2 ? operands[1] : std::string(), json);
}

}  // namespace ovi18n_tool
