#include <fl/i18n/codecvt/stream_converter.hpp>

namespace fl {
namespace i18n {

// Out of line, so that the vtables of the two instantiations live in the library alone.
template <class To, class From>
stream_converter<To, From>::~stream_converter() = default;

template class stream_converter<char, char16_t>;
template class stream_converter<char16_t, char>;

}  // namespace i18n
}  // namespace fl
