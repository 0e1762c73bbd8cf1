#include "i18n/lcmgmt/event_validator.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using fl::i18n::lcmgmt::EventValidator;

struct step {
    bool start;
    char const* name;
    int expected;
};

struct sequence {
    char const* why;
    std::vector<step> steps;
};

TEST(EventValidator, WalksNestingAsTheGrammarSays) {
    constexpr int refused = EventValidator::refused;
    std::vector<sequence> const sequences = {
        {"well nested",
         {{true, "root", 1}, {true, "child", 2}, {false, "child", 0}, {false, "root", 0}}},
        {"any known element may be outermost", {{true, "child", 2}, {false, "child", 0}}},
        {"unknown element", {{true, "root", 1}, {true, "other", refused}}},
        {"child under the wrong parent", {{true, "root", 1}, {true, "leaf", refused}}},
        {"end with nothing open", {{false, "root", refused}}},
        {"end of an element that isn't innermost",
         {{true, "root", 1}, {true, "child", 2}, {false, "root", refused}}},
        // The same name inside itself passes without a push, so its end closes the outer one.
        {"same name nested",
         {{true, "child", 2}, {true, "child", 2}, {false, "child", 0}, {false, "child", refused}}},
        {"same name nested under a parent",
         {{true, "root", 1},
          {true, "child", 2},
          {true, "child", 2},
          {false, "child", 0},
          {false, "child", refused},
          {false, "root", 0}}},
    };
    for (auto const& s : sequences) {
        EventValidator validator;
        validator.add("root", 1, "");
        validator.add("child", 2, "root");
        validator.add("leaf", 3, "child");
        for (std::size_t i = 0; i < s.steps.size(); ++i) {
            step const& st = s.steps[i];
            int const got = st.start ? validator.start(st.name) : validator.end(st.name);
            EXPECT_EQ(st.expected, got) << s.why << ", step " << i;
        }
    }
}

}  // namespace
