#include "bad_input_locator.hpp"
#include "commands.hpp"
#include "line_boundary.hpp"
#include "piece_converter.hpp"
#include "progress_line.hpp"
#include "text_position.hpp"
#include "usage_error.hpp"

#include <fl/i18n.hpp>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <deque>
#include <future>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace ovi18n_tool {
namespace {

using fl::i18n::codecvt_call_back_mode;

// Input is read in pieces of this size, so memory stays flat whatever the input's size.
constexpr std::size_t piece_size = 1u << 20;
// Bytes kept from before a piece, for finding a refused sequence that began in the last one.
constexpr std::size_t history_size = 64;
// Pieces converted ahead of the one being written. A piece in flight holds its input, its text
// and its output, several MiB, so this, not the number of cores, bounds the memory: more threads
// than this add nothing but resident size.
constexpr std::size_t most_pieces_ahead = 6;

struct options {
    std::string from;
    std::string to;
    std::string mode = "stop";
    std::string substitution;
    bool quiet = false;
    unsigned jobs = 0;  // 0: one per core
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

// A piece of input on its way through the converters. A piece that ends right after a line
// feed, in an encoding that may be cut there, is decoded by a converter of its own, so several
// pieces decode at once, and one that also begins so is encoded on the same thread. Any other
// piece hands its decoder on to the next, which waits for it, and is encoded in order by the
// main thread, which alone keeps a surrogate cut off at a piece's end.
struct piece_job {
    // Up to history_size bytes from before the piece, then the piece; shared with its thread.
    std::shared_ptr<std::string const> bytes;
    std::size_t history = 0;
    std::uint64_t offset = 0;  // of the piece's first byte in the input
    bool last = false;
    std::shared_future<converted_piece> result;
};

using decoder_ptr = std::shared_ptr<fl::i18n::stream_codecvt_string_to_ustring const>;

class converter_run {
public:
    converter_run(options const& o, unsigned jobs)
        : options_(o),
          encoder_(make_encoder(o)),
          jobs_(std::max(jobs, 1u)),
          pieces_ahead_(std::min<std::size_t>(2 * jobs_, most_pieces_ahead)) {}

    // Returns the exit code: 0, or 1 after saying what went wrong.
    int convert(std::FILE* in, std::string const& name, std::uint64_t size) {
        progress_line progress(!options_.quiet, size);
        progress_ = &progress;
        name_ = name;
        position_ = text_position();
        pending_.clear();
        decoder_.reset();
        previous_ = std::shared_future<converted_piece>();
        // Probed only once a second piece shows that the input is worth cutting; with one thread
        // a single decoder takes the input in order, as a stream.
        std::optional<bool> may_cut;
        if (jobs_ == 1) {
            may_cut = false;
        }
        std::string input;   // read and not yet handed over
        std::string before;  // the last history_size bytes handed over
        std::uint64_t offset = 0;
        for (bool last = false; !last;) {
            std::size_t const kept = input.size();
            input.resize(kept + piece_size);
            std::size_t const got = std::fread(input.data() + kept, 1, piece_size, in);
            if (got < piece_size && std::ferror(in)) {
                return fail(name + ": " + std::strerror(errno));
            }
            input.resize(kept + got);
            last = got < piece_size;
            std::size_t cut = input.size();
            bool ends_clean = last;
            if (!last && !may_cut) {
                may_cut = cuts_after_line_feed(options_.from);
            }
            if (!last && *may_cut) {
                std::size_t const line_feed = input.rfind('\n');
                if (line_feed != std::string::npos) {
                    cut = line_feed + 1;
                    ends_clean = true;
                }
            }
            auto bytes = std::make_shared<std::string>();
            bytes->reserve(before.size() + cut);
            bytes->append(before).append(input, 0, cut);
            piece_job job;
            job.history = before.size();
            job.offset = offset;
            job.last = last;
            before.assign(*bytes, bytes->size() - std::min(history_size, bytes->size()));
            job.bytes = std::move(bytes);
            input.erase(0, cut);
            offset += cut;
            start(job, ends_clean);
            in_flight_.push_back(std::move(job));
            // Enough pieces ahead to keep every thread busy, and no more, so memory stays flat.
            while (!in_flight_.empty() && (last || in_flight_.size() > pieces_ahead_)) {
                bool const written = finish(in_flight_.front());
                in_flight_.pop_front();
                if (!written) {
                    in_flight_.clear();
                    return 1;
                }
            }
        }
        return 0;
    }

private:
    // Starts converting a piece: on a thread of its own when there are several, else when its
    // result is asked for.
    void start(piece_job& job, bool ends_clean) {
        bool const starts_clean = !decoder_;
        decoder_ptr decoder = decoder_;
        if (!decoder) {
            decoder = std::make_shared<fl::i18n::stream_codecvt_string_to_ustring const>(
                options_.from, options_.mode != "stop");
        }
        std::shared_ptr<fl::i18n::codecvt_ustring_to_string const> encoder;
        if (starts_clean && ends_clean) {
            encoder = make_encoder(options_);
        }
        auto work = [decoder, encoder, previous = previous_, ends_clean, bytes = job.bytes,
                     history = job.history]() mutable {
            // After a failure the decoder was reset, so what follows is not decoded at all.
            bool const after_failure = previous.valid() && previous.get().failed;
            // Let go of the previous piece at once, or a chain of pieces would keep every text
            // before it alive.
            previous = std::shared_future<converted_piece>();
            if (after_failure) {
                return converted_piece{};
            }
            return convert_piece(*decoder, encoder.get(), bytes->data() + history,
                                 bytes->size() - history, ends_clean);
        };
        job.result =
            std::async(jobs_ > 1 ? std::launch::async : std::launch::deferred, std::move(work))
                .share();
        decoder_ = ends_clean ? decoder_ptr() : decoder;
        previous_ = ends_clean ? std::shared_future<converted_piece>() : job.result;
    }

    // Writes a converted piece, or reports where its input went wrong.
    bool finish(piece_job const& job) {
        converted_piece const& piece = job.result.get();
        if (piece.encoded) {
            write_bytes(piece.bytes.data.get(), piece.bytes.size);
            position_.advance(piece.span);
        } else {
            std::u16string text = pending_;
            pending_.clear();
            text.append(piece.text.data.get(), piece.text.size);
            if (!encode(text.data(), text.size(), job.last || piece.failed, position_)) {
                return false;
            }
        }
        if (piece.failed) {
            bad_input const bad =
                locate_bad_input(options_.from, job.bytes->data(), job.history + piece.taken);
            std::uint64_t const at = job.offset + bad.start - job.history;
            fail(name_ + ":" + std::to_string(position_.line) + ":" +
                 std::to_string(position_.column) + ": invalid " + options_.from +
                 " input at byte " + std::to_string(at) + ": " + hex(bad.bytes));
            return false;
        }
        progress_->update(job.offset + job.bytes->size() - job.history);
        return true;
    }

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
        write_bytes(encoded_.data(), needed);
    }

    static void write_bytes(char const* bytes, std::size_t size) {
        if (std::fwrite(bytes, 1, size, stdout) != size) {
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
    unsigned const jobs_;
    std::size_t const pieces_ahead_;
    // The converter and result a piece that didn't end clean leaves to the next piece.
    decoder_ptr decoder_;
    std::shared_future<converted_piece> previous_;
    std::deque<piece_job> in_flight_;
    text_position position_;
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
        if ((arg == "--from" || arg == "--to" || arg == "--on-error" || arg == "--jobs") &&
            !has_value) {
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
        } else if (arg == "--jobs") {
            std::string const& value = args[++i];
            char* end = nullptr;
            unsigned long const jobs = std::strtoul(value.c_str(), &end, 10);
            if (value.empty() || *end != '\0' || jobs == 0 || jobs > 64) {
                return usage_error("--jobs takes a number from 1 to 64");
            }
            o.jobs = static_cast<unsigned>(jobs);
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
    converter_run run(o, o.jobs != 0 ? o.jobs : std::thread::hardware_concurrency());
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
