#ifndef FL_FILESYSTEM_SEED_RNG_HPP
#define FL_FILESYSTEM_SEED_RNG_HPP

#include <cstdint>
#include <limits>

namespace fl {
namespace filesystem {
namespace detail {

// Seed words for a pseudo-random engine, straight from the kernel's random source
// (getrandom). Should that fail, the clock, the address of this object and a running counter,
// mixed, still give varying seeds. A uniform random number generator, so that an engine can
// draw from it, directly or as a seed sequence.
class seed_rng {
public:
    using result_type = std::uint32_t;

    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }

    seed_rng();
    result_type operator()();

    // The seed sequence face, which engines' seed() takes.
    template <class Iterator>
    void generate(Iterator first, Iterator last) {
        for (; first != last; ++first) {
            *first = (*this)();
        }
    }

private:
    void refill();

    static constexpr unsigned words = 8;

    std::uint32_t words_[words] = {};
    std::uint32_t counter_ = 0;
    unsigned used_ = words;
};

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
