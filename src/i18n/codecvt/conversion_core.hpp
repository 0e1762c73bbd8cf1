#ifndef FL_I18N_CODECVT_CONVERSION_CORE_HPP
#define FL_I18N_CODECVT_CONVERSION_CORE_HPP

#include <fl/i18n/ustring.hpp>

#include "i18n/codecvt/icu_error_family.hpp"

#include <unicode/ucnv.h>

#include <cstddef>
#include <string>

namespace fl {
namespace i18n {
namespace detail {

// An ICU converter as the conversion core uses it: borrowed, with what was learnt about it
// when it was opened.
struct converter_use {
    UConverter* converter;
    // is_ascii_transparent: runs of ASCII may be copied without ICU.
    bool ascii_transparent;
};

// The one conversion loop of each direction. ICU is called with the text in chunks that fit
// its 32-bit counts, writing straight into the result; a result that runs out of room grows
// and the conversion goes on where it stopped. ICU converts a text the same whether its output
// goes to one buffer or to several in turn (what does not fit waits inside the converter), so
// this gives the text and the length that a measuring pass and an exact second pass gave, and
// what one ICU call over the whole text gives. Substitutions are what the converter's
// call-backs make them; failures go through raise_icu_error with the family. The converter is
// left reset, also when this throws, so no state carries over to the next text.

std::string from_ustring(converter_use use, char16_t const* source, std::size_t size,
                         icu_error_family const& family);
ustring to_ustring(converter_use use, char const* source, std::size_t size,
                   icu_error_family const& family);

// Store the prefix that fits and return the full length needed, what the call-backs substitute
// included; a null destination or a capacity of 0 only measures.
std::size_t from_ustring_into(converter_use use, char* destination, std::size_t capacity,
                              char16_t const* source, std::size_t size,
                              icu_error_family const& family);
std::size_t to_ustring_into(converter_use use, char16_t* destination, std::size_t capacity,
                            char const* source, std::size_t size, icu_error_family const& family);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
