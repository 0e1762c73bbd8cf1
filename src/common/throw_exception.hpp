#ifndef FL_COMMON_THROW_EXCEPTION_HPP
#define FL_COMMON_THROW_EXCEPTION_HPP

#include <boost/exception/exception.hpp>

namespace fl {
namespace detail {

// Every failure leaves the library through here, so that boost::exception_ptr can clone and
// rethrow it across threads with its dynamic type intact.
template <class Exception>
[[noreturn]] void throw_exception(Exception const& e) {
    throw boost::enable_current_exception(e);
}

}  // namespace detail
}  // namespace fl

#endif
