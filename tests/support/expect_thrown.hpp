#ifndef OVI18N_TESTS_SUPPORT_EXPECT_THROWN_HPP
#define OVI18N_TESTS_SUPPORT_EXPECT_THROWN_HPP

#include <gtest/gtest.h>

// Runs call, which must throw an E, and hands what it threw to check.
template <class E, class Call, class Check>
void expect_thrown(Call const& call, Check const& check) {
    try {
        call();
    } catch (E const& e) {
        check(e);
        return;
    }
    ADD_FAILURE() << "nothing thrown";
}

#endif
