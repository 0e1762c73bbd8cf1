#ifndef OVI18N_TOOL_PROGRESS_LINE_HPP
#define OVI18N_TOOL_PROGRESS_LINE_HPP

#include <chrono>
#include <cstdint>

namespace ovi18n_tool {

// A line on standard error, rewritten in place: bytes done, rate and, when the total is known,
// time left. Shown only when standard error is a terminal, and only for inputs of a few
// megabytes or more, so that piped and logged runs stay clean.
class progress_line {
public:
    // total 0: unknown, as for a pipe.
    progress_line(bool wanted, std::uint64_t total);
    ~progress_line();

    void update(std::uint64_t done);
    // Takes the line away, so that a message can start at the left margin.
    void clear();

private:
    bool shown_;
    bool drawn_ = false;
    std::uint64_t total_;
    std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point last_;
};

}  // namespace ovi18n_tool

#endif
