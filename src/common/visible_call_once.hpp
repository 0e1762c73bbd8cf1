#ifndef FL_COMMON_VISIBLE_CALL_ONCE_HPP
#define FL_COMMON_VISIBLE_CALL_ONCE_HPP

#include <boost/thread/once.hpp>

#if defined(__SANITIZE_THREAD__)
#define FL_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define FL_THREAD_SANITIZER 1
#endif
#endif

#ifdef FL_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

namespace fl {
namespace detail {

// boost::call_once synchronises inside the compiled Boost.Thread library, where ThreadSanitizer
// cannot see it, and so it reports every first use of a once-made object as a race. Under that
// sanitizer the flag itself carries the ordering the once region already guarantees; elsewhere
// this is boost::call_once and nothing more.
template <class Function>
void visible_call_once(boost::once_flag& flag, Function function) {
#ifdef FL_THREAD_SANITIZER
    boost::call_once(flag, [&] {
        function();
        __tsan_release(&flag);
    });
    __tsan_acquire(&flag);
#else
    boost::call_once(flag, function);
#endif
}

}  // namespace detail
}  // namespace fl

#endif
