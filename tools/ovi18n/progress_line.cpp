#include "progress_line.hpp"

#include <unistd.h>

#include <cstdio>

namespace ovi18n_tool {
namespace {

constexpr std::uint64_t threshold = 4u << 20;
constexpr double mebibyte = 1024.0 * 1024.0;

}  // namespace

progress_line::progress_line(bool wanted, std::uint64_t total)
    : shown_(wanted && isatty(STDERR_FILENO) == 1),
      total_(total),
      start_(std::chrono::steady_clock::now()),
      last_(start_) {}

progress_line::~progress_line() {
    clear();
}

void progress_line::clear() {
    if (drawn_) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
        drawn_ = false;
    }
}

void progress_line::update(std::uint64_t done) {
    if (!shown_ || (total_ != 0 ? total_ : done) < threshold) {
        return;
    }
    auto const now = std::chrono::steady_clock::now();
    if (drawn_ && now - last_ < std::chrono::milliseconds(250)) {
        return;
    }
    last_ = now;
    drawn_ = true;
    double const seconds = std::chrono::duration<double>(now - start_).count();
    double const rate = seconds > 0 ? done / mebibyte / seconds : 0;
    std::fprintf(stderr, "\r\033[K%.1f MiB", done / mebibyte);
    if (total_ != 0) {
        std::fprintf(stderr, " of %.1f MiB", total_ / mebibyte);
    }
    std::fprintf(stderr, ", %.1f MiB/s", rate);
    if (total_ != 0 && rate > 0) {
        std::fprintf(stderr, ", %.0f s left", (total_ - done) / mebibyte / rate);
    }
    std::fflush(stderr);
}

}  // namespace ovi18n_tool
