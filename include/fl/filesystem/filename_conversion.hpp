#ifndef FL_FILESYSTEM_FILENAME_CONVERSION_HPP
#define FL_FILESYSTEM_FILENAME_CONVERSION_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <string>

// ICU's converter, by its C name only: no installed header includes ICU, and these detail
// routines are for the library's own converters. Not reachable from <fl/filesystem.hpp>.
struct UConverter;

namespace fl {
namespace filesystem {
namespace detail {

// Every path crosses between UTF-16 and the bytes of the operating system here, in the default
// encoding. There is no escape scheme: what happens to an unmappable character or an illegal
// byte depends only on the converter's call-back mode.

// One ICU call into the destination; returns the length the whole result needs. Lengths above
// 0x7FFFFFFF raise boost::numeric::positive_overflow. ICU errors become FileNameTooLarge (a
// source above 0x3FFFFFFF units, this direction only), CvtInvalidCharacter or
// FileNameConversionFailure.
FL_I18N_API std::size_t convert_path_to_bytes(UConverter* converter, char* destination,
                                              std::size_t capacity, char16_t const* source,
                                              std::size_t length);
FL_I18N_API std::size_t convert_bytes_to_path(UConverter* converter, char16_t* destination,
                                              std::size_t capacity, char const* source,
                                              std::size_t length);

// Whole conversions: a stack buffer for short names, an exact second pass only when needed.
FL_I18N_API std::string path_to_bytes(UConverter* converter, char16_t const* source,
                                      std::size_t length);
FL_I18N_API fl::i18n::ustring bytes_to_path(UConverter* converter, char const* source,
                                            std::size_t length);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
