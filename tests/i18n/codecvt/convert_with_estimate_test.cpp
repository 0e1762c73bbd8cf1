#include "i18n/codecvt/convert_with_estimate.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fl::i18n {
namespace {

struct estimate_case {
    char const* reason;
    std::size_t source_size;
    std::size_t result_size;
    std::vector<std::size_t> capacities;  // offered to fill, in order
};

std::vector<estimate_case> const estimate_cases = {
    {"short source, short result: stack only", 1024, 1024, {1024}},
    {"short source, long result: exact second fill", 10, 1025, {1024, 1025}},
    {"long source fits its first block", 1025, 900, {1025}},
    {"first block capped at 32768", 40000, 32768, {32768}},
    {"result beyond the cap: exact second fill", 40000, 40001, {32768, 40001}},
    {"empty", 0, 0, {1024}},
};

TEST(convert_with_estimate, fills_stack_block_then_exact) {
    for (estimate_case const& c : estimate_cases) {
        SCOPED_TRACE(c.reason);
        std::vector<std::size_t> offered;
        std::string const source(c.source_size, 's');
        auto fill = [&](char16_t* destination, std::size_t capacity, char const*, std::size_t) {
            offered.push_back(capacity);
            std::fill_n(destination, std::min(capacity, c.result_size), u'r');
            return c.result_size;
        };
        std::u16string const result =
            detail::convert_with_estimate<char16_t>(source.data(), source.size(), fill);
        EXPECT_EQ(result, std::u16string(c.result_size, u'r'));
        EXPECT_EQ(offered, c.capacities);
    }
}

}  // namespace
}  // namespace fl::i18n
