#include <fl/filesystem/filename_conversion.hpp>

#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/filename_errors.hpp"
#include "i18n/codecvt/conversion_core.hpp"

#include <unicode/ucnv.h>
#include <boost/numeric/conversion/converter_policies.hpp>
#include <boost/throw_exception.hpp>

namespace fl {
namespace filesystem {
namespace detail {
namespace {

using fl::i18n::detail::converter_use;

void invalid_character() {
    fl::detail::throw_exception(CvtInvalidCharacter());
}

void conversion_failure() {
    fl::detail::throw_exception(FileNameConversionFailure(fl::i18n::codecvt_conversion_failure));
}

// What the numeric cast of a length to ICU's int32_t throws.
void beyond_int32() {
    boost::throw_exception(boost::numeric::positive_overflow());
}

void file_name_too_large() {
    fl::detail::throw_exception(FileNameTooLarge(fl::i18n::ustring()));
}

// A converter handed in bare comes with nothing learnt about it: all of it goes through ICU.
converter_use use_of(UConverter* converter) {
    return {converter, false};
}

}  // namespace

fl::i18n::detail::icu_error_family const file_name_errors = {
    &invalid_character, &conversion_failure, &beyond_int32, &file_name_too_large};

// The routes below used to hand each text to ICU in one call: the family keeps that route's
// bounds (a length beyond int32_t is refused by the numeric cast, a source beyond ICU's UTF-16
// limit is FileNameTooLarge), and the chunked core gives the same bytes, units and errors.

std::size_t convert_path_to_bytes(UConverter* converter, char* destination, std::size_t capacity,
                                  char16_t const* source, std::size_t length) {
    return fl::i18n::detail::from_ustring_into(use_of(converter), destination, capacity, source,
                                               length, file_name_errors);
}

std::size_t convert_bytes_to_path(UConverter* converter, char16_t* destination,
                                  std::size_t capacity, char const* source, std::size_t length) {
    return fl::i18n::detail::to_ustring_into(use_of(converter), destination, capacity, source,
                                             length, file_name_errors);
}

std::string path_to_bytes(UConverter* converter, char16_t const* source, std::size_t length) {
    return fl::i18n::detail::from_ustring(use_of(converter), source, length, file_name_errors);
}

fl::i18n::ustring bytes_to_path(UConverter* converter, char const* source, std::size_t length) {
    return fl::i18n::detail::to_ustring(use_of(converter), source, length, file_name_errors);
}

std::string path_to_bytes(converter_use use, char16_t const* source, std::size_t length) {
    return fl::i18n::detail::from_ustring(use, source, length, file_name_errors);
}

fl::i18n::ustring bytes_to_path(converter_use use, char const* source, std::size_t length) {
    return fl::i18n::detail::to_ustring(use, source, length, file_name_errors);
}

std::size_t path_to_bytes_into(converter_use use, char* destination, std::size_t capacity,
                               char16_t const* source, std::size_t length) {
    return fl::i18n::detail::from_ustring_into(use, destination, capacity, source, length,
                                               file_name_errors);
}

std::size_t bytes_to_path_into(converter_use use, char16_t* destination, std::size_t capacity,
                               char const* source, std::size_t length) {
    return fl::i18n::detail::to_ustring_into(use, destination, capacity, source, length,
                                             file_name_errors);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
