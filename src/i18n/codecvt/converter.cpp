#include <fl/i18n/codecvt/converter.hpp>

namespace fl {
namespace i18n {

// Defined here, out of line, so that the vtables and type information of the four
// instantiations live in the library alone.
template <class To, class From>
converter<To, From>::~converter() = default;

template class converter<char, char16_t>;
template class converter<char16_t, char>;
template class converter<wchar_t, char16_t>;
template class converter<char16_t, wchar_t>;

}  // namespace i18n
}  // namespace fl
