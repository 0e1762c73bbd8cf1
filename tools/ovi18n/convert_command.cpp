#include "bad_input_locator.hpp"
#include "commands.hpp"
#include "progress_line.hpp"
#include "text_position.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace ovi18n_tool {
namespace {

using fl::i18n::codecvt_call_back_mode;

// Input is read in pieces of this size, so memory stays flat whatever the input's size.
constexpr std::size_t piece_size = 1u << 20;
// Bytes kept from before a piece, for finding a refused sequence that began in the last one.
constexpr std::size_t history_size = 64;

struct options {
    std::string from;
    std::string to;
    std::string mode = "stop";
    std::string substitution;
    bool quiet = false;
    std::vector<std::string> files;
};

// The modes handled by the encoding side's call back; stop and replace are plain strict and
// lenient converters.
std::map<std::string, codecvt_call_back_mode> const& call_back_modes() {
    static std::map<std::string, codecvt_call_back_mode> const modes = {
        {"substitute", fl::i18n::call_back_substitute},
        {"escape-icu", fl::i18n::call_back_escape_icu},
        {"escape-java", fl::i18n::call_back_escape_java},
        {"escape-c", fl::i18n::call_back_escape_c},
        {"escape-xml-dec", fl::i18n::call_back_escape_xml_dec},
        {"escape-xml-hex", fl::i18n::call_back_escape_xml_hex},
        {"escape-unicode", fl::i18n::call_back_escape_unicode},
        {"escape-css2", fl::i18n::call_back_escape_css2}};
    return modes;
}

bool set_mode(options& o, std::string const& mode) {
    if (mode.rfind("substitute=", 0) == 0) {
        o.mode = "substitute";
        o.substitution = mode.substr(11);
        return !o.substitution.empty() && o.substitution.size() <= 127;
    }
    o.mode = mode;
    return mode == "stop" || mode == "replace" ||
           (mode != "substitute" && call_back_modes().count(mode) != 0);
}

std::unique_ptr<fl::i18n::codecvt_ustring_to_string> make_encoder(options const& o) {
    using fl::i18n::codecvt_ustring_to_string;
    if (o.mode == "stop" || o.mode == "replace") {
        return std::make_unique<codecvt_ustring_to_string>(o.to, o.mode == "replace");
    }
    auto encoder = std::make_unique<codecvt_ustring_to_string>(o.to, false);
    encoder->change_call_back(call_back_modes().at(o.mode), o.substitution);
    return encoder;
}

std::string hex(std::string const& bytes) {
    std::string out;
    char digits[4];
    for (unsigned char byte : bytes) {
        std::snprintf(digits, sizeof digits, out.empty() ? "%02x" : " %02x", byte);
        out += digits;
    }
    return out;
}

class converter_run {
public:
    explicit converter_run(options const& o) : options_(o), encoder_(make_encoder(o)) {}

    // Returns the exit code: 0, or 1 after saying what went wrong.
    int convert(std::FILE* in, std::string const& name, std::uint64_t size) {
        fl::i18n::stream_codecvt_string_to_ustring decoder(options_.from, options_.mode != "stop");
        progress_line progress(!options_.quiet, size);
        progress_ = &progress;
        name_ = name;
        std::vector<char> piece(history_size + piece_size);
        std::size_t history = 0;
        std::uint64_t offset = 0;  // of the piece's first byte in the input
        text_position position;
        pending_.clear();
        for (;;) {
            char* const data = piece.data() + history_size;
            std::size_t const got = std::fread(data, 1, piece_size, in);
            if (got < piece_size && std::ferror(in)) {
                return fail(name + ": " + std::strerror(errno));
            }
            bool const last = got < piece_size;
            char const* from = data;
            bool more = true;
            while (more) {
                char16_t* to = decoded_.data() + pending_.size();
                std::copy(pending_.begin(), pending_.end(), decoded_.data());
                pending_.clear();
                char16_t const* const text = decoded_.data();
                try {
                    more = decoder.do_convert(&to, decoded_.data() + decoded_.size(), &from,
                                              data + got, last);
                } catch (fl::i18n::CvtExceptionBase const&) {
                    std::size_t const valid = static_cast<std::size_t>(to - text);
                    if (!encode(text, valid, true, position)) {
                        return 1;
                    }
                    bad_input const bad =
                        locate_bad_input(options_.from, data - history,
                                         static_cast<std::size_t>(from - data) + history);
                    std::uint64_t const at = offset + bad.start - history;
                    return fail(name + ":" + std::to_string(position.line) + ":" +
                                std::to_string(position.column) + ": invalid " + options_.from +
                                " input at byte " + std::to_string(at) + ": " + hex(bad.bytes));
                }
                if (!encode(text, static_cast<std::size_t>(to - text), last && !more, position)) {
                    return 1;
                }
            }
            offset += got;
            progress.update(offset);
            if (last) {
                return 0;
            }
            history = std::min(history_size, got);
            std::memmove(piece.data() + history_size - history, data + got - history, history);
        }
    }

private:
    // Encodes and writes the text, keeping back a high surrogate at its end for the next piece
    // unless it is the end. With stop, an unencodable character ends the run after the text
    // before it is written.
    bool encode(char16_t const* text, std::size_t size, bool end, text_position& position) {
        if (!end && size > 0 && (text[size - 1] & 0xFC00) == 0xD800) {
            pending_.assign(1, text[size - 1]);
            --size;
        }
        try {
            write(text, size);
        } catch (fl::i18n::CvtExceptionBase const&) {
            std::size_t i = 0;
            while (i < size) {
                std::size_t const n = (text[i] & 0xFC00) == 0xD800 && i + 1 < size ? 2 : 1;
                try {
                    write(text + i, n);
                } catch (fl::i18n::CvtExceptionBase const&) {
                    char code[16];
                    char32_t const c =
                        n == 2 ? 0x10000 + ((text[i] - 0xD800) << 10) + (text[i + 1] - 0xDC00)
                               : text[i];
                    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(c));
                    fail(name_ + ":" + std::to_string(position.line) + ":" +
                         std::to_string(position.column) + ": " + code + " cannot be written in " +
                         options_.to);
                    return false;
                }
                position.advance(text + i, n);
                i += n;
            }
            return true;
        }
        position.advance(text, size);
        return true;
    }

    void write(char16_t const* text, std::size_t size) {
        if (size == 0) {
            return;
        }
        std::size_t needed = encoder_->do_convert(encoded_.data(), encoded_.size(), text, size);
        if (needed > encoded_.size()) {
            encoded_.resize(needed);
            needed = encoder_->do_convert(encoded_.data(), encoded_.size(), text, size);
        }
        if (std::fwrite(encoded_.data(), 1, needed, stdout) != needed) {
            throw std::runtime_error(std::string("standard output: ") + std::strerror(errno));
        }
    }

    int fail(std::string const& what) {
        std::fflush(stdout);
        progress_->clear();
        std::cerr << "ovi18n: " << what << "\n";
        return 1;
    }

    options const& options_;
    std::unique_ptr<fl::i18n::codecvt_ustring_to_string> encoder_;
    std::vector<char16_t> decoded_ = std::vector<char16_t>(piece_size + 2);
    std::vector<char> encoded_ = std::vector<char>(piece_size * 4);
    std::u16string pending_;
    std::string name_;
    progress_line* progress_ = nullptr;
};

}  // namespace

int run_convert(std::vector<std::string> const& args) {
    options o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string const& arg = args[i];
        bool const has_value = i + 1 < args.size();
        if ((arg == "--from" || arg == "--to" || arg == "--on-error") && !has_value) {
            return usage_error(arg + " needs a value");
        }
        if (arg == "--from") {
            o.from = args[++i];
        } else if (arg == "--to") {
            o.to = args[++i];
        } else if (arg == "--on-error") {
            if (!set_mode(o, args[++i])) {
                return usage_error("unknown --on-error mode '" + args[i] + "'");
            }
        } else if (arg == "--quiet") {
            o.quiet = true;
        } else if (arg.size() > 1 && arg[0] == '-') {
            return usage_error("unknown argument '" + arg + "'");
        } else {
            o.files.push_back(arg);
        }
    }
    if (o.from.empty() || o.to.empty()) {
        return usage_error("convert needs --from and --to");
    }
    // Aliases from the locale database count, so start the library first.
    fl::i18n::initialize();
    for (std::string* name : {&o.from, &o.to}) {
        std::string const standard = fl::i18n::get_standard_encoding_name(*name);
        if (standard.empty()) {
            return usage_error("unknown encoding '" + *name + "'");
        }
        *name = standard;
    }
    converter_run run(o);
    if (o.files.empty()) {
        o.files.push_back("-");
    }
    for (std::string const& file : o.files) {
        bool const is_stdin = file == "-";
        std::FILE* in = is_stdin ? stdin : std::fopen(file.c_str(), "rb");
        if (in == nullptr) {
            std::cerr << "ovi18n: " << file << ": " << std::strerror(errno) << "\n";
            return 1;
        }
        struct stat info {};
        std::uint64_t const size =
            fstat(fileno(in), &info) == 0 && S_ISREG(info.st_mode) ? info.st_size : 0;
        int const result = run.convert(in, is_stdin ? "standard input" : file, size);
        if (!is_stdin) {
            std::fclose(in);
        }
        if (result != 0) {
            return result;
        }
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace ovi18n_tool
