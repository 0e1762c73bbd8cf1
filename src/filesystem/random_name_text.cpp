#include "filesystem/random_name_text.hpp"

#include "filesystem/seed_rng.hpp"

#include <boost/filesystem/operations.hpp>
#include <boost/random/mersenne_twister.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace fl {
namespace filesystem {
namespace detail {

std::string random_name_text() {
    try {
        return boost::filesystem::unique_path("%%%%-%%%%-%%%%-%%%%").string();
    } catch (...) {
        return random_uuid_text();
    }
}

std::string random_uuid_text() {
    seed_rng seeds;
    boost::random::mt19937 engine;
    engine.seed(seeds);
    boost::uuids::basic_random_generator<boost::random::mt19937> generate(&engine);
    return boost::uuids::to_string(generate());
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
