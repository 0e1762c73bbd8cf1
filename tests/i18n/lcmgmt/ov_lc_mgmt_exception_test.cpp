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

struct fields {
    char const* id;
    int code;
    char const* message;
    char const* detail;
};

template <class Leaf>
void expect_fields(OvLcMgmtExceptionBase const& e, fields const& f) {
    EXPECT_EQ(e.getId(), f.id);
    EXPECT_EQ(e.getCode(), f.code);
    EXPECT_EQ(e.getMessage(), f.message);
    EXPECT_EQ(e.getDetail(), f.detail);
    EXPECT_STREQ(e.what(), f.message);
    EXPECT_NE(dynamic_cast<Leaf const*>(&e), nullptr) << "dynamic type lost";
}

// Thrown the library's way, caught as the base here and, cloned, as the leaf in another thread.
template <class Leaf>
void expect_thrown_and_cloned(Leaf const& leaf, fields const& f) {
    SCOPED_TRACE(f.id);
    boost::exception_ptr captured;
    try {
        fl::detail::throw_exception(leaf);
    } catch (OvLcMgmtExceptionBase const& e) {
        expect_fields<Leaf>(e, f);
        captured = boost::current_exception();
    }
    ASSERT_TRUE(captured);
    bool caught_as_leaf = false;
    std::thread([&] {
        try {
            boost::rethrow_exception(captured);
        } catch (Leaf const& e) {
            caught_as_leaf = true;
            expect_fields<Leaf>(e, f);
        } catch (...) {
        }
    }).join();
    EXPECT_TRUE(caught_as_leaf);
}

TEST(LcMgmtException, KeepsItsFieldsAndTypeThroughCatchingAndCloning) {
    expect_thrown_and_cloned(OvLcInvLcName("xx_YY.bogus"),
                             {"fl:i18n:OvLcInvLcName", 1, "Invalid locale name.", "xx_YY.bogus"});
    expect_thrown_and_cloned(OvLcDataNotFound(),
                             {"fl:i18n:OvLcDataNotFound", 2, "Locale data not found.", ""});
    expect_thrown_and_cloned(OvLcInvLcArgument(),
                             {"fl:i18n:OvLcInvLcArgument", 4, "Invalid argument.", ""});
}

TEST(LcMgmtException, FromTheLibraryIsThrownCloneable) {
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
