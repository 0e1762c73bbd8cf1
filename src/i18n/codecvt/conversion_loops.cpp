#include "i18n/codecvt/conversion_loops.hpp"

#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "common/throw_exception.hpp"
#include "i18n/codecvt/conversion_error.hpp"

#include <algorithm>
#include <limits>
#include <vector>

namespace fl {
namespace i18n {
namespace detail {

namespace {

// Below this many source elements the first try runs on the stack.
constexpr std::size_t stack_units = 1024;
// A long text's first try gets one element per source element, but no more than this.
constexpr std::size_t first_block_cap = 32768;
// ICU counts in int32_t and refuses longer spans of UTF-16 source.
constexpr std::size_t from_unicode_source_span = 0x3FFFFFFF;
constexpr std::size_t to_unicode_source_span = 0x7FFFFFFF;
constexpr std::size_t to_unicode_target_span = 65536;
// ICU reports 3 as UTF-8's maximum, but a supplementary character takes 4 bytes.
constexpr std::size_t utf8_target_span = 131072;
constexpr std::size_t target_span_characters = 32768;
constexpr std::size_t no_target_span = std::numeric_limits<std::size_t>::max();

std::size_t from_unicode_target_span(UConverter* converter) {
    if (ucnv_getType(converter) == UCNV_UTF8) {
        return utf8_target_span;
    }
    int const max_char_size = ucnv_getMaxCharSize(converter);
    if (max_char_size < 0) {
        fl::detail::throw_exception(CvtSizeTooLarge());
    }
    return static_cast<std::size_t>(max_char_size) * target_span_characters;
}

// One run over the whole source into buffer. Once the buffer is full the output goes to the
// scratch, which is rewound whenever it fills, so the pass keeps counting the full length.
template <class To, class From, class Step>
std::size_t run_pass(UConverter* converter, To* buffer, std::size_t capacity, To* scratch,
                     From const* source, std::size_t size, std::size_t target_span,
                     std::size_t source_span, UErrorCode& error, Step step) {
    To* cursor = buffer;
    To* end = buffer + capacity;
    From const* read = source;
    From const* const source_end = source + size;
    std::size_t total = 0;
    for (;;) {
        std::size_t const room = static_cast<std::size_t>(end - cursor);
        std::size_t const span = std::min(room, target_span);
        std::size_t const left = static_cast<std::size_t>(source_end - read);
        std::size_t const take = std::min(left, source_span);
        bool const last = take == left;
        total += step(converter, &cursor, cursor + span, &read, read + take, last, &error);
        if (error > U_ZERO_ERROR && error != U_BUFFER_OVERFLOW_ERROR) {
            UErrorCode const failure = error;
            ucnv_reset(converter);
            throw_conversion_error(failure);
        }
        if (error == U_BUFFER_OVERFLOW_ERROR) {
            if (span == room) {
                cursor = scratch;
                end = scratch + stack_units;
            }
            continue;
        }
        if (last) {
            return total;
        }
    }
}

template <class To, class From, class Step>
std::basic_string<To> convert_whole(UConverter* converter, From const* source, std::size_t size,
                                    std::size_t target_span, std::size_t source_span, Step step) {
    To stack_buffer[stack_units];
    To scratch[stack_units];
    std::vector<To> block;
    To* first = stack_buffer;
    std::size_t capacity = stack_units;
    if (size >= stack_units + 1) {
        block.assign(std::min(size, first_block_cap), To());
        first = block.data();
        capacity = block.size();
    }
    UErrorCode error = U_ZERO_ERROR;
    std::size_t const total = run_pass(converter, first, capacity, scratch, source, size,
                                       target_span, source_span, error, step);
    ucnv_reset(converter);
    if (total <= capacity) {
        return std::basic_string<To>(first, total);
    }
    std::vector<To>().swap(block);
    std::basic_string<To> result(total, To());
    run_pass(converter, &result[0], total, scratch, source, size, target_span, source_span, error,
             step);
    ucnv_reset(converter);
    return result;
}

template <class To, class From, class Step>
std::size_t measure(UConverter* converter, From const* source, std::size_t size,
                    std::size_t source_span, Step step) {
    To scratch[stack_units];
    UErrorCode error = U_ZERO_ERROR;
    std::size_t const total = run_pass(converter, scratch, stack_units, scratch, source, size,
                                       no_target_span, source_span, error, step);
    ucnv_reset(converter);
    return total;
}

template <class To, class From, class Step>
std::size_t convert_into(UConverter* converter, To* destination, std::size_t capacity,
                         From const* source, std::size_t size, std::size_t target_span,
                         std::size_t source_span, UErrorCode& error, Step step) {
    To scratch[stack_units];
    if (destination == nullptr) {
        capacity = 0;
    }
    std::size_t const total = run_pass(converter, destination, capacity, scratch, source, size,
                                       target_span, source_span, error, step);
    ucnv_reset(converter);
    return total;
}

}  // namespace

std::string convert_from_ustring(UConverter* converter, char16_t const* source, std::size_t size,
                                 from_unicode_step_function step) {
    return convert_whole<char>(converter, source, size, from_unicode_target_span(converter),
                               from_unicode_source_span, step);
}

ustring convert_to_ustring(UConverter* converter, char const* source, std::size_t size,
                           to_unicode_step_function step) {
    return convert_whole<char16_t>(converter, source, size, to_unicode_target_span,
                                   to_unicode_source_span, step);
}

std::size_t convert_from_ustring_into(UConverter* converter, char* destination,
                                      std::size_t capacity, char16_t const* source,
                                      std::size_t size, UErrorCode& error,
                                      from_unicode_step_function step) {
    return convert_into(converter, destination, capacity, source, size,
                        from_unicode_target_span(converter), from_unicode_source_span, error, step);
}

std::size_t convert_to_ustring_into(UConverter* converter, char16_t* destination,
                                    std::size_t capacity, char const* source, std::size_t size,
                                    UErrorCode& error, to_unicode_step_function step) {
    return convert_into(converter, destination, capacity, source, size, to_unicode_target_span,
                        to_unicode_source_span, error, step);
}

std::size_t measure_from_ustring(UConverter* converter, char16_t const* source, std::size_t size,
                                 from_unicode_step_function step) {
    return measure<char>(converter, source, size, from_unicode_source_span, step);
}

std::size_t measure_to_ustring(UConverter* converter, char const* source, std::size_t size,
                               to_unicode_step_function step) {
    return measure<char16_t>(converter, source, size, to_unicode_source_span, step);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
