#include <fl/filesystem/filename_converter.hpp>

#include "filesystem/filename_converter_logic.hpp"

namespace fl {
namespace filesystem {

// Both pairs delegate, statement for statement, to the same logic; only the class identities
// differ.

codecvt_ustring_to_filesystem::codecvt_ustring_to_filesystem(bool lenient)
    : context_(detail::make_path_to_bytes_context(lenient)) {}

codecvt_ustring_to_filesystem::~codecvt_ustring_to_filesystem() = default;

std::size_t codecvt_ustring_to_filesystem::do_get_destination_size(char16_t const* source,
                                                                   std::size_t length) const {
    return detail::measure_path_to_bytes(context_.get(), source, length);
}

std::string codecvt_ustring_to_filesystem::do_convert(char16_t const* source,
                                                      std::size_t length) const {
    return detail::convert_path_to_bytes(context_.get(), source, length);
}

std::size_t codecvt_ustring_to_filesystem::do_convert(char* destination, std::size_t capacity,
                                                      char16_t const* source,
                                                      std::size_t length) const {
    return detail::convert_path_to_bytes(context_.get(), destination, capacity, source, length);
}

codecvt_filesystem_to_ustring::codecvt_filesystem_to_ustring(bool lenient)
    : context_(detail::make_bytes_to_path_context(lenient)) {}

codecvt_filesystem_to_ustring::~codecvt_filesystem_to_ustring() = default;

std::size_t codecvt_filesystem_to_ustring::do_get_destination_size(char const* source,
                                                                   std::size_t length) const {
    return detail::measure_bytes_to_path(context_.get(), source, length);
}

std::u16string codecvt_filesystem_to_ustring::do_convert(char const* source,
                                                         std::size_t length) const {
    return detail::convert_bytes_to_path(context_.get(), source, length);
}

std::size_t codecvt_filesystem_to_ustring::do_convert(char16_t* destination, std::size_t capacity,
                                                      char const* source,
                                                      std::size_t length) const {
    return detail::convert_bytes_to_path(context_.get(), destination, capacity, source, length);
}

codecvt_ustring_to_narrow_string::codecvt_ustring_to_narrow_string(bool lenient)
    : context_(detail::make_path_to_bytes_context(lenient)) {}

codecvt_ustring_to_narrow_string::~codecvt_ustring_to_narrow_string() = default;

std::size_t codecvt_ustring_to_narrow_string::do_get_destination_size(char16_t const* source,
                                                                      std::size_t length) const {
    return detail::measure_path_to_bytes(context_.get(), source, length);
}

std::string codecvt_ustring_to_narrow_string::do_convert(char16_t const* source,
                                                         std::size_t length) const {
    return detail::convert_path_to_bytes(context_.get(), source, length);
}

std::size_t codecvt_ustring_to_narrow_string::do_convert(char* destination, std::size_t capacity,
                                                         char16_t const* source,
                                                         std::size_t length) const {
    return detail::convert_path_to_bytes(context_.get(), destination, capacity, source, length);
}

codecvt_narrow_string_to_ustring::codecvt_narrow_string_to_ustring(bool lenient)
    : context_(detail::make_bytes_to_path_context(lenient)) {}

codecvt_narrow_string_to_ustring::~codecvt_narrow_string_to_ustring() = default;

std::size_t codecvt_narrow_string_to_ustring::do_get_destination_size(char const* source,
                                                                      std::size_t length) const {
    return detail::measure_bytes_to_path(context_.get(), source, length);
}

std::u16string codecvt_narrow_string_to_ustring::do_convert(char const* source,
                                                            std::size_t length) const {
    return detail::convert_bytes_to_path(context_.get(), source, length);
}

std::size_t codecvt_narrow_string_to_ustring::do_convert(char16_t* destination,
                                                         std::size_t capacity, char const* source,
                                                         std::size_t length) const {
    return detail::convert_bytes_to_path(context_.get(), destination, capacity, source, length);
}

}  // namespace filesystem
}  // namespace fl
