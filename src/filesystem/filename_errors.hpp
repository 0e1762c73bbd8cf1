#ifndef FL_FILESYSTEM_FILENAME_ERRORS_HPP
#define FL_FILESYSTEM_FILENAME_ERRORS_HPP

#include <fl/i18n/ustring.hpp>

#include "i18n/codecvt/conversion_core.hpp"
#include "i18n/codecvt/icu_error_family.hpp"

#include <cstddef>
#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// How the file names report ICU's refusals: CvtInvalidCharacter and FileNameConversionFailure
// of the filesystem family, boost::numeric::positive_overflow for a length beyond int32_t, and
// FileNameTooLarge for more than 0x3FFFFFFF units to encode.
extern fl::i18n::detail::icu_error_family const file_name_errors;

// The conversions of path names on a converter whose ASCII transparency is known.
std::string path_to_bytes(fl::i18n::detail::converter_use use, char16_t const* source,
                          std::size_t length);
fl::i18n::ustring bytes_to_path(fl::i18n::detail::converter_use use, char const* source,
                                std::size_t length);
std::size_t path_to_bytes_into(fl::i18n::detail::converter_use use, char* destination,
                               std::size_t capacity, char16_t const* source, std::size_t length);
std::size_t bytes_to_path_into(fl::i18n::detail::converter_use use, char16_t* destination,
                               std::size_t capacity, char const* source, std::size_t length);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
