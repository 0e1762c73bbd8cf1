#include "filesystem/seed_rng.hpp"

#include <sys/random.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>

namespace fl {
namespace filesystem {
namespace detail {

namespace {

// Whether the kernel filled all of buffer with random bytes.
bool fill_from_kernel(void* buffer, std::size_t size) {
    auto* bytes = static_cast<unsigned char*>(buffer);
    while (size > 0) {
        ssize_t const got = ::getrandom(bytes, size, 0);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

// One step of splitmix64, enough to spread clock, address and counter over the words.
std::uint64_t mix(std::uint64_t& state) {
    std::uint64_t z = (state += 0x9E3779B97F4A7C15u);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
}

}  // namespace

seed_rng::seed_rng() = default;

seed_rng::result_type seed_rng::operator()() {
    if (used_ == words) {
        refill();
    }
    return words_[used_++];
}

void seed_rng::refill() {
    used_ = 0;
    int const saved_errno = errno;
    bool const filled = fill_from_kernel(words_, sizeof words_);
    errno = saved_errno;
    if (filled) {
        return;
    }
    auto const now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    std::uint64_t state = static_cast<std::uint64_t>(now) ^ reinterpret_cast<std::uintptr_t>(this) ^
                          (static_cast<std::uint64_t>(++counter_) << 32);
    for (std::uint32_t& word : words_) {
        word = static_cast<std::uint32_t>(mix(state) >> 32);
    }
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
