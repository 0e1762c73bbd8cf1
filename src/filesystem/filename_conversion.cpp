#include <fl/filesystem/filename_conversion.hpp>

#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/convert_with_estimate.hpp"

#include <unicode/ucnv.h>
#include <boost/numeric/conversion/cast.hpp>

#include <cstdint>

namespace fl {
namespace filesystem {
namespace detail {
namespace {

constexpr std::size_t largest_encodable_path = 0x3FFFFFFF;

[[noreturn]] void throw_name_conversion_error(UErrorCode status) {
    if (status == U_INVALID_CHAR_FOUND || status == U_ILLEGAL_CHAR_FOUND) {
        fl::detail::throw_exception(CvtInvalidCharacter());
    }
    // A truncated sequence is a failed conversion, not an invalid character.
    fl::detail::throw_exception(FileNameConversionFailure(fl::i18n::codecvt_conversion_failure));
}

// A buffer overflow only tells the length needed, and warnings are not failures.
bool is_failure(UErrorCode status) {
    return status > U_ZERO_ERROR && status != U_BUFFER_OVERFLOW_ERROR;
}

}  // namespace

std::size_t convert_path_to_bytes(UConverter* converter, char* destination, std::size_t capacity,
                                  char16_t const* source, std::size_t length) {
    UErrorCode status = U_ZERO_ERROR;
    auto const source_length = boost::numeric_cast<std::int32_t>(length);
    auto const destination_capacity = boost::numeric_cast<std::int32_t>(capacity);
    std::int32_t const needed = ucnv_fromUChars(converter, destination, destination_capacity,
                                                source, source_length, &status);
    if (is_failure(status)) {
        if (length > largest_encodable_path) {
            fl::detail::throw_exception(FileNameTooLarge(fl::i18n::ustring()));
        }
        throw_name_conversion_error(status);
    }
    return boost::numeric_cast<std::size_t>(needed);
}

std::size_t convert_bytes_to_path(UConverter* converter, char16_t* destination,
                                  std::size_t capacity, char const* source, std::size_t length) {
    UErrorCode status = U_ZERO_ERROR;
    auto const source_length = boost::numeric_cast<std::int32_t>(length);
    auto const destination_capacity = boost::numeric_cast<std::int32_t>(capacity);
    std::int32_t const needed =
        ucnv_toUChars(converter, destination, destination_capacity, source, source_length, &status);
    if (is_failure(status)) {
        throw_name_conversion_error(status);
    }
    return boost::numeric_cast<std::size_t>(needed);
}

std::string path_to_bytes(UConverter* converter, char16_t const* source, std::size_t length) {
    return fl::i18n::detail::convert_with_estimate<char>(
        source, length,
        [converter](char* destination, std::size_t capacity, char16_t const* from,
                    std::size_t size) {
            return convert_path_to_bytes(converter, destination, capacity, from, size);
        });
}

fl::i18n::ustring bytes_to_path(UConverter* converter, char const* source, std::size_t length) {
    return fl::i18n::detail::convert_with_estimate<char16_t>(
        source, length,
        [converter](char16_t* destination, std::size_t capacity, char const* from,
                    std::size_t size) {
            return convert_bytes_to_path(converter, destination, capacity, from, size);
        });
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
