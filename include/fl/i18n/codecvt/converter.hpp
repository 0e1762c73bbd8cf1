#ifndef FL_I18N_CODECVT_CONVERTER_HPP
#define FL_I18N_CODECVT_CONVERTER_HPP

#include <fl/i18n/export.hpp>

#include <cstddef>
#include <string>

namespace fl {
namespace i18n {

// The interface of every encoding conversion. The operations are const, but an ICU-backed
// converter changes the state of the ICU object it owns while it runs: one object serves one
// thread at a time.
template <class To, class From>
class converter {
public:
    virtual ~converter();

    // Exact number of To units the conversion produces; writes nothing.
    virtual std::size_t do_get_destination_size(From const* source,
                                                std::size_t source_size) const = 0;

    virtual std::basic_string<To> do_convert(From const* source, std::size_t source_size) const = 0;

    // Stores the prefix that fits and returns the length the whole conversion needs, so that a
    // caller can allocate and call again. Never writes a terminator.
    virtual std::size_t do_convert(To* destination, std::size_t destination_size,
                                   From const* source, std::size_t source_size) const = 0;
};

extern template class FL_I18N_API converter<char, char16_t>;
extern template class FL_I18N_API converter<char16_t, char>;
extern template class FL_I18N_API converter<wchar_t, char16_t>;
extern template class FL_I18N_API converter<char16_t, wchar_t>;

}  // namespace i18n
}  // namespace fl

#endif
