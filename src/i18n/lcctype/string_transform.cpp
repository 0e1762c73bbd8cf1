#include <fl/i18n/lcctype/string_transform.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include "i18n/lcctype/ctype_size_limit.hpp"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <string>

namespace fl {
namespace i18n {
namespace lcctype {

namespace {

// The one sequence of checks behind every transform. The operation is a template parameter
// rather than a type-erased function object: each overload inlines its ICU call, and the checks,
// the order of the checks and the results are the same whatever form the operation takes.
template <class Operation>
std::size_t run_transform(char16_t* destination, std::size_t destination_size,
                          char16_t const* source, std::size_t source_size,
                          Operation const& operation) {
    if (source == nullptr || source_size == 0) {
        return 0;
    }
    detail::check_ctype_size(source_size);
    std::int32_t capacity = 0;
    if (destination != nullptr) {
        detail::check_ctype_size(destination_size);
        capacity = static_cast<std::int32_t>(destination_size);
    }
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t const result =
        operation(destination, capacity, source, static_cast<std::int32_t>(source_size), &error);
    if (result < 0 || static_cast<std::size_t>(result) > detail::ctype_size_limit) {
        fl::detail::throw_exception(CtypeSizeTooLarge());
    }
    // A short destination only measures; warnings such as a missing terminator are no failure.
    if (error > U_ZERO_ERROR && error != U_BUFFER_OVERFLOW_ERROR) {
        fl::detail::throw_exception(CtypeTransformFailure());
    }
    return static_cast<std::size_t>(result);
}

using normalizer_getter = UNormalizer2 const* (*)(UErrorCode*);

// ICU's one-shot normalisation with options 0 hands the text to the shared instance of the mode;
// calling that instance directly gives the same units and errors without the deprecated entry.
std::size_t normalize(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, normalizer_getter getter) {
    return run_transform(destination, destination_size, source, source_size,
                         [getter](UChar* dest, std::int32_t capacity, UChar const* src,
                                  std::int32_t length, UErrorCode* error) {
                             UNormalizer2 const* form = getter(error);
                             return unorm2_normalize(form, src, length, dest, capacity, error);
                         });
}

std::size_t upper(char16_t* destination, std::size_t destination_size, char16_t const* source,
                  std::size_t source_size, char const* locale_name) {
    return run_transform(destination, destination_size, source, source_size,
                         [locale_name](UChar* dest, std::int32_t capacity, UChar const* src,
                                       std::int32_t length, UErrorCode* error) {
                             return u_strToUpper(dest, capacity, src, length, locale_name, error);
                         });
}

std::size_t lower(char16_t* destination, std::size_t destination_size, char16_t const* source,
                  std::size_t source_size, char const* locale_name) {
    return run_transform(destination, destination_size, source, source_size,
                         [locale_name](UChar* dest, std::int32_t capacity, UChar const* src,
                                       std::int32_t length, UErrorCode* error) {
                             return u_strToLower(dest, capacity, src, length, locale_name, error);
                         });
}

std::string ctype_name_of(OvLocale const& locale) {
    return locale.getLocaleName(OvLocale::ctype);
}

}  // namespace

// The empty locale name is ICU's root locale.
std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_upper /*tag*/) {
    return upper(destination, destination_size, source, source_size, "");
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_lower /*tag*/) {
    return lower(destination, destination_size, source, source_size, "");
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_upper_locale const& tag) {
    std::string const name = ctype_name_of(tag.locale());
    return upper(destination, destination_size, source, source_size, name.c_str());
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_lower_locale const& tag) {
    std::string const name = ctype_name_of(tag.locale());
    return lower(destination, destination_size, source, source_size, name.c_str());
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_nfc /*tag*/) {
    return normalize(destination, destination_size, source, source_size, unorm2_getNFCInstance);
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_nfd /*tag*/) {
    return normalize(destination, destination_size, source, source_size, unorm2_getNFDInstance);
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_nfkc /*tag*/) {
    return normalize(destination, destination_size, source, source_size, unorm2_getNFKCInstance);
}

std::size_t transform(char16_t* destination, std::size_t destination_size, char16_t const* source,
                      std::size_t source_size, to_nfkd /*tag*/) {
    return normalize(destination, destination_size, source, source_size, unorm2_getNFKDInstance);
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
