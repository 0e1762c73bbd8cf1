#include <fl/i18n/lcmgmt/ov_lc_mgmt_exception.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "common/throw_exception.hpp"

#include <gtest/gtest.h>
#include <boost/exception_ptr.hpp>

#include <string>
#include <thread>

namespace {

using fl::i18n::OvLcDataNotFound;
using fl::i18n::OvLcInvLcArgument;
using fl::i18n::OvLcInvLcName;
using fl::i18n::OvLcMgmtExceptionBase;

// One row per leaf: how to make it and what it must carry.
template <class Leaf>
struct row;

template <>
struct row<OvLcInvLcName> {
    static OvLcInvLcName make() { return OvLcInvLcName("xx_YY.bogus"); }
    static constexpr char const* id = "fl:i18n:OvLcInvLcName";
    static constexpr int code = 1;
    static constexpr char const* message = "Invalid locale name.";
    static constexpr char const* detail = "xx_YY.bogus";
};

template <>
struct row<OvLcDataNotFound> {
    static OvLcDataNotFound make() { return OvLcDataNotFound(); }
    static constexpr char const* id = "fl:i18n:OvLcDataNotFound";
    static constexpr int code = 2;
    static constexpr char const* message = "Locale data not found.";
    static constexpr char const* detail = "";
};

template <>
struct row<OvLcInvLcArgument> {
    static OvLcInvLcArgument make() { return OvLcInvLcArgument(); }
    static constexpr char const* id = "fl:i18n:OvLcInvLcArgument";
    static constexpr int code = 4;
    static constexpr char const* message = "Invalid argument.";
    static constexpr char const* detail = "";
};

template <class Leaf>
void expect_row(OvLcMgmtExceptionBase const& e) {
    EXPECT_EQ(e.getId(), row<Leaf>::id);
    EXPECT_EQ(e.getCode(), row<Leaf>::code);
    EXPECT_EQ(e.getMessage(), row<Leaf>::message);
    EXPECT_EQ(e.getDetail(), row<Leaf>::detail);
    EXPECT_STREQ(e.what(), row<Leaf>::message);
    EXPECT_NE(dynamic_cast<Leaf const*>(&e), nullptr) << "dynamic type lost";
}

template <class Leaf>
class LcMgmtException : public testing::Test {};

using Leaves = testing::Types<OvLcInvLcName, OvLcDataNotFound, OvLcInvLcArgument>;
TYPED_TEST_SUITE(LcMgmtException, Leaves);

// Thrown the library's way, caught as the base here and, cloned, as the leaf in another thread.
TYPED_TEST(LcMgmtException, KeepsItsFieldsAndTypeThroughCatchingAndCloning) {
    boost::exception_ptr captured;
    try {
        fl::detail::throw_exception(row<TypeParam>::make());
    } catch (OvLcMgmtExceptionBase const& e) {
        expect_row<TypeParam>(e);
        captured = boost::current_exception();
    }
    ASSERT_TRUE(captured);
    bool caught_as_leaf = false;
    std::thread([&] {
        try {
            boost::rethrow_exception(captured);
        } catch (TypeParam const& e) {
            caught_as_leaf = true;
            expect_row<TypeParam>(e);
        } catch (...) {
        }
    }).join();
    EXPECT_TRUE(caught_as_leaf);
}

TEST(LcMgmtExceptionFromLibrary, IsThrownCloneable) {
    // The wrapper is what lets boost::exception_ptr copy the exception without std's help.
    EXPECT_THROW(fl::i18n::OvLocale::getLcCategory("no such category"),
                 boost::exception_detail::clone_base);

    boost::exception_ptr captured;
    try {
        fl::i18n::OvLocale::getLcCategory("no such category");
    } catch (...) {
        captured = boost::current_exception();
    }
    ASSERT_TRUE(captured);
    EXPECT_THROW(boost::rethrow_exception(captured), OvLcDataNotFound);
}

}  // namespace
