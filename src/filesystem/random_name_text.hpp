#ifndef FL_FILESYSTEM_RANDOM_NAME_TEXT_HPP
#define FL_FILESYSTEM_RANDOM_NAME_TEXT_HPP

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// Sixteen random hexadecimal digits in four groups, "%%%%-%%%%-%%%%-%%%%". When the system's
// random source fails, the text of a random UUID takes their place.
std::string random_name_text();

// The text of a version 4 UUID drawn from a Mersenne Twister seeded by seed_rng.
std::string random_uuid_text();

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
