#include "filesystem/random_name_text.hpp"

#include "filesystem/streams/name_model.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using fl::filesystem::detail::random_uuid_text;

// The hex-group form is checked through the temporary names made from it. Each text seeds a
// generator of its own from seed_rng, so a seed that never changes shows as repeated texts.
TEST(RandomNameText, UuidFormAndVariety) {
    std::set<std::string> seen;
    for (int i = 0; i < 20; ++i) {
        std::string const text = random_uuid_text();
        // A version 4 UUID in its usual hyphenated form.
        EXPECT_TRUE(fits_model(text, "xxxxxxxx-xxxx-4xxx-vxxx-xxxxxxxxxxxx")) << text;
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 20u);
}

}  // namespace
