#ifndef FL_COMMON_CALL_ONCE_HPP
#define FL_COMMON_CALL_ONCE_HPP

#include <boost/thread/once.hpp>

#include <atomic>

namespace fl {
namespace detail {

// A boost::once_flag with its hand-over repeated in code that ThreadSanitizer sees.
// boost::call_once decides inside libboost_thread, whose atomics the sanitizer can't observe, so a
// thread that finds the work already done would look unsynchronised with the thread that did it.
// The extra flag costs one acquire load, and lets later callers skip the library call.
struct once_region {
    boost::once_flag flag = BOOST_ONCE_INIT;
    std::atomic<bool> done{false};
};

template <class Function>
void call_once(once_region& region, Function&& function) {
    if (region.done.load(std::memory_order_acquire)) {
        return;
    }
    boost::call_once(region.flag, [&region, &function] {
        function();
        region.done.store(true, std::memory_order_release);
    });
    // Pairs with the store above when another thread ran the function.
    static_cast<void>(region.done.load(std::memory_order_acquire));
}

}  // namespace detail
}  // namespace fl

#endif
