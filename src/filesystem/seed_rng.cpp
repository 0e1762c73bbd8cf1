#include "filesystem/seed_rng.hpp"

#include <boost/uuid/detail/sha1.hpp>

#include <chrono>
#include <cstdio>
#include <memory>

namespace fl {
namespace filesystem {
namespace detail {

namespace {

constexpr std::size_t entropy_bytes = 20;

struct file_closer {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

}  // namespace

seed_rng::seed_rng() = default;

seed_rng::result_type seed_rng::operator()() {
    if (used_ == 5) {
        refill();
    }
    return digest_[used_++];
}

void seed_rng::refill() {
    boost::uuids::detail::sha1 hash;
    unsigned char entropy[entropy_bytes] = {};
    std::unique_ptr<std::FILE, file_closer> const source(std::fopen("/dev/urandom", "rb"));
    if (source) {
        std::setbuf(source.get(), nullptr);
        std::size_t const got = std::fread(entropy, 1, sizeof entropy, source.get());
        static_cast<void>(got);  // a short read leaves zeros, which the other inputs outweigh
    }
    hash.process_bytes(entropy, sizeof entropy);
    hash.process_bytes(digest_, sizeof digest_);
    void const* const self = this;
    hash.process_bytes(&self, sizeof self);
    auto const now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    hash.process_bytes(&now, sizeof now);
    hash.process_bytes(&counter_, sizeof counter_);
    ++counter_;
    hash.get_digest(digest_);
    used_ = 0;
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
