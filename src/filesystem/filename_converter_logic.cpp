#include "filesystem/filename_converter_logic.hpp"

#include <fl/filesystem/access_form.hpp>
#include <fl/filesystem/filename_conversion.hpp>
#include <fl/filesystem/fsys_exception.hpp>

#include "common/throw_exception.hpp"
#include "filesystem/filename_errors.hpp"
#include "i18n/codecvt/default_converter.hpp"

namespace fl {
namespace filesystem {
namespace detail {
namespace {

using fl::i18n::detail::codecvt_context;

fl::i18n::detail::converter_use converter_of(codecvt_context const* context) {
    if (context == nullptr || context->get() == nullptr) {
        fl::detail::throw_exception(
            FileNameConversionFailure(fl::i18n::codecvt_conversion_failure));
    }
    return context->use();
}

context_pointer make_default_context() {
    bool ascii_transparent = false;
    fl::i18n::detail::unique_converter clone =
        fl::i18n::detail::clone_default_converter(&ascii_transparent);
    return std::make_unique<codecvt_context>(std::move(clone), ascii_transparent);
}

}  // namespace

context_pointer make_path_to_bytes_context(bool lenient) {
    auto context = make_default_context();
    if (!lenient) {
        context->change_from_call_back(fl::i18n::call_back_stop, std::string());
    }
    return context;
}

context_pointer make_bytes_to_path_context(bool lenient) {
    auto context = make_default_context();
    if (!lenient) {
        context->change_to_call_back(fl::i18n::call_back_stop);
    }
    return context;
}

std::size_t measure_path_to_bytes(codecvt_context const* context, char16_t const* source,
                                  std::size_t length) {
    return path_to_bytes_into(converter_of(context), nullptr, 0, source, length);
}

std::string convert_path_to_bytes(codecvt_context const* context, char16_t const* source,
                                  std::size_t length) {
    return path_to_bytes(converter_of(context), source, length);
}

std::size_t convert_path_to_bytes(codecvt_context const* context, char* destination,
                                  std::size_t capacity, char16_t const* source,
                                  std::size_t length) {
    return path_to_bytes_into(converter_of(context), destination, capacity, source, length);
}

std::size_t measure_bytes_to_path(codecvt_context const* context, char const* source,
                                  std::size_t length) {
    return bytes_to_path_into(converter_of(context), nullptr, 0, source, length);
}

fl::i18n::ustring convert_bytes_to_path(codecvt_context const* context, char const* source,
                                        std::size_t length) {
    return bytes_to_path(converter_of(context), source, length);
}

std::size_t convert_bytes_to_path(codecvt_context const* context, char16_t* destination,
                                  std::size_t capacity, char const* source, std::size_t length) {
    return bytes_to_path_into(converter_of(context), destination, capacity, source, length);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
