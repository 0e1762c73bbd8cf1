#ifndef FL_FILESYSTEM_FILENAME_CONVERTER_LOGIC_HPP
#define FL_FILESYSTEM_FILENAME_CONVERTER_LOGIC_HPP

#include <fl/i18n/ustring.hpp>

#include "i18n/codecvt/codecvt_context.hpp"

#include <cstddef>
#include <memory>
#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The one logic behind both pairs of file name converter classes.

using context_pointer = std::unique_ptr<fl::i18n::detail::codecvt_context>;

// A clone of the default converter; a strict context stops at what it can't convert.
context_pointer make_path_to_bytes_context(bool lenient);
context_pointer make_bytes_to_path_context(bool lenient);

std::size_t measure_path_to_bytes(fl::i18n::detail::codecvt_context const* context,
                                  char16_t const* source, std::size_t length);
std::string convert_path_to_bytes(fl::i18n::detail::codecvt_context const* context,
                                  char16_t const* source, std::size_t length);
std::size_t convert_path_to_bytes(fl::i18n::detail::codecvt_context const* context,
                                  char* destination, std::size_t capacity, char16_t const* source,
                                  std::size_t length);

std::size_t measure_bytes_to_path(fl::i18n::detail::codecvt_context const* context,
                                  char const* source, std::size_t length);
fl::i18n::ustring convert_bytes_to_path(fl::i18n::detail::codecvt_context const* context,
                                        char const* source, std::size_t length);
std::size_t convert_bytes_to_path(fl::i18n::detail::codecvt_context const* context,
                                  char16_t* destination, std::size_t capacity, char const* source,
                                  std::size_t length);

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
