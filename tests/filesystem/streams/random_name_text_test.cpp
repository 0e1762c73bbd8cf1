#include "filesystem/random_name_text.hpp"
#include "filesystem/seed_rng.hpp"

#include "filesystem/streams/name_model.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using fl::filesystem::detail::random_uuid_text;
using fl::filesystem::detail::seed_rng;

// The hex-group form is checked through the temporary names made from it.
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

TEST(SeedRng, WordsVaryWithinAndAcrossGenerators) {
    seed_rng first;
    seed_rng second;
    std::set<seed_rng::result_type> words;
    for (int i = 0; i < 12; ++i) {
        words.insert(first());
        words.insert(second());
    }
    EXPECT_GE(words.size(), 23u);

    seed_rng::result_type block[7] = {};
    first.generate(block, block + 7);
    EXPECT_EQ(std::set<seed_rng::result_type>(block, block + 7).size(), 7u);
}

}  // namespace
