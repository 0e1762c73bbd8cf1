#ifndef OVI18N_TESTS_SUPPORT_CLONED_EXCEPTION_HPP
#define OVI18N_TESTS_SUPPORT_CLONED_EXCEPTION_HPP

#include <gtest/gtest.h>
#include <boost/exception_ptr.hpp>

#include <thread>
#include <typeinfo>

// Runs raise, which must throw a Base, carries what it threw in a boost::exception_ptr to another
// thread and rethrows it there: the copy must have the class first thrown, and check sees it.
// Only an exception thrown through the library's one helper can be copied this way.
template <class Base, class Raise, class Check>
void expect_cloned_as_thrown(Raise const& raise, Check const& check) {
    boost::exception_ptr carried;
    std::type_info const* thrown = nullptr;
    try {
        raise();
    } catch (Base const& e) {
        thrown = &typeid(e);
        carried = boost::current_exception();
    }
    ASSERT_TRUE(carried) << "nothing thrown";
    std::thread([&] {
        try {
            boost::rethrow_exception(carried);
        } catch (Base const& copy) {
            EXPECT_EQ(typeid(copy), *thrown) << "the copy lost its class";
            check(copy);
        } catch (...) {
            ADD_FAILURE() << "the copy is no longer a " << typeid(Base).name();
        }
    }).join();
}

#endif
