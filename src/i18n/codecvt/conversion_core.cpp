#include "i18n/codecvt/conversion_core.hpp"

#include "i18n/codecvt/ascii_runs.hpp"

#include <algorithm>
#include <type_traits>

namespace fl {
namespace i18n {
namespace detail {

namespace {

// Measuring counts in a scratch of this size, rewound whenever it fills.
constexpr std::size_t scratch_units = 1024;
// Room for what ICU holds back in its own buffers when the target fills.
constexpr std::size_t growth_slack = 16;

// ICU refuses, per call, more than 0x3FFFFFFF UTF-16 units and more than 0x7FFFFFFF bytes on
// either side.
struct from_unicode {
    using from = char16_t;
    using to = char;
    static constexpr std::size_t source_span = 0x3FFFFFFF;
    static constexpr std::size_t target_span = 0x7FFFFFFF;

    static void step(UConverter* converter, char** target, char const* target_limit,
                     char16_t const** source, char16_t const* source_limit, bool flush,
                     UErrorCode* error) {
        ucnv_fromUnicode(converter, target, target_limit, source, source_limit, nullptr, flush,
                         error);
    }
    // The most bytes that left units can become, shift sequences of a stateful encoding
    // included. UTF-8 counts 3 per unit, which also covers a pair's 4 bytes.
    static std::size_t bound(UConverter* converter, std::size_t left) {
        return static_cast<std::size_t>(
            UCNV_GET_MAX_BYTES_FOR_STRING(left, std::max<int>(ucnv_getMaxCharSize(converter), 1)));
    }
};

struct to_unicode {
    using from = char;
    using to = char16_t;
    static constexpr std::size_t source_span = 0x7FFFFFFF;
    static constexpr std::size_t target_span = 0x3FFFFFFF;

    static void step(UConverter* converter, char16_t** target, char16_t const* target_limit,
                     char const** source, char const* source_limit, bool flush, UErrorCode* error) {
        ucnv_toUnicode(converter, target, target_limit, source, source_limit, nullptr, flush,
                       error);
    }
    // A byte gives at most one unit in the encodings of the world; a result that needs more
    // grows again.
    static std::size_t bound(UConverter* /*converter*/, std::size_t left) { return left; }
};

// The result string itself: when it is full it grows by what the rest of the source can need.
template <class Direction>
class growing_sink {
public:
    using To = typename Direction::to;

    growing_sink(UConverter* converter, std::size_t size)
        : converter_(converter), text_(Direction::bound(converter, size), To()) {
        rebase(0);
    }

    void full(std::size_t left) {
        std::size_t const used = static_cast<std::size_t>(cursor - base_);
        text_.resize(text_.size() + Direction::bound(converter_, left) + growth_slack);
        rebase(used);
    }

    std::basic_string<To> finish() {
        text_.resize(static_cast<std::size_t>(cursor - base_));
        return std::move(text_);
    }

    To* cursor = nullptr;
    To* end = nullptr;

private:
    void rebase(std::size_t used) {
        base_ = &text_[0];
        cursor = base_ + used;
        end = base_ + text_.size();
    }

    UConverter* converter_;
    std::basic_string<To> text_;
    To* base_ = nullptr;
};

// A caller's buffer, then a scratch that only counts.
template <class Direction>
class counting_sink {
public:
    using To = typename Direction::to;

    counting_sink(To* destination, std::size_t capacity)
        : cursor(destination),
          end(destination == nullptr ? nullptr : destination + capacity),
          window_(destination) {
        if (destination == nullptr || capacity == 0) {
            full(0);  // only measures
        }
    }

    void full(std::size_t /*left*/) {
        counted_ += static_cast<std::size_t>(cursor - window_);
        window_ = scratch_;
        cursor = scratch_;
        end = scratch_ + scratch_units;
    }

    std::size_t total() const { return counted_ + static_cast<std::size_t>(cursor - window_); }

    To* cursor;
    To* end;

private:
    To* window_;
    std::size_t counted_ = 0;
    To scratch_[scratch_units];
};

template <class Direction, class Sink>
void call_icu(converter_use use, typename Direction::from const*& read,
              typename Direction::from const* segment_end,
              typename Direction::from const* source_end, Sink& sink,
              icu_error_family const& family) {
    for (;;) {
        std::size_t const left = static_cast<std::size_t>(segment_end - read);
        std::size_t const take = std::min(left, Direction::source_span);
        bool const flush = take == left && segment_end == source_end;
        std::size_t const room = static_cast<std::size_t>(sink.end - sink.cursor);
        UErrorCode error = U_ZERO_ERROR;
        Direction::step(use.converter, &sink.cursor,
                        sink.cursor + std::min(room, Direction::target_span), &read, read + take,
                        flush, &error);
        if (is_icu_failure(error)) {
            ucnv_reset(use.converter);
            raise_icu_error(error, family);
        }
        if (error == U_BUFFER_OVERFLOW_ERROR) {
            if (sink.cursor == sink.end) {
                sink.full(static_cast<std::size_t>(source_end - read));
            }
            continue;  // also drains what ICU held back once the source is consumed
        }
        if (read == segment_end) {
            return;
        }
    }
}

template <class Direction, class Sink>
void run(converter_use use, typename Direction::from const* source, std::size_t size, Sink& sink,
         icu_error_family const& family) {
    using From = typename Direction::from;
    From const* read = source;
    From const* const source_end = source + size;
    if (!use.ascii_transparent) {
        call_icu<Direction>(use, read, source_end, source_end, sink, family);
    }
    while (read != source_end) {
        // ASCII becomes itself in this encoding, by ICU's own tables, so it is copied as ICU
        // would have written it.
        std::size_t const left = static_cast<std::size_t>(source_end - read);
        std::size_t const room = static_cast<std::size_t>(sink.end - sink.cursor);
        std::size_t const copied = copy_ascii(read, std::min(left, room), sink.cursor);
        read += copied;
        sink.cursor += copied;
        if (copied == left) {
            break;
        }
        if (copied == room) {
            sink.full(left - copied);
            continue;
        }
        // ICU takes the rest up to the next long ASCII run and the first element of that run:
        // an ASCII element ends any sequence that ICU held open, so no state is pending when
        // the run is copied and the results are those of one call over the whole text.
        std::size_t const next = find_ascii_run(read, left - copied);
        From const* const segment_end = read + std::min(next + 1, left - copied);
        call_icu<Direction>(use, read, segment_end, source_end, sink, family);
    }
    ucnv_reset(use.converter);
}

template <class Direction>
std::basic_string<typename Direction::to> convert_whole(converter_use use,
                                                        typename Direction::from const* source,
                                                        std::size_t size,
                                                        icu_error_family const& family) {
    check_icu_lengths(size, 0, std::is_same<Direction, from_unicode>::value, family);
    growing_sink<Direction> sink(use.converter, size);
    run<Direction>(use, source, size, sink, family);
    return sink.finish();
}

template <class Direction>
std::size_t convert_into(converter_use use, typename Direction::to* destination,
                         std::size_t capacity, typename Direction::from const* source,
                         std::size_t size, icu_error_family const& family) {
    check_icu_lengths(size, capacity, std::is_same<Direction, from_unicode>::value, family);
    counting_sink<Direction> sink(destination, capacity);
    run<Direction>(use, source, size, sink, family);
    return sink.total();
}

}  // namespace

std::string from_ustring(converter_use use, char16_t const* source, std::size_t size,
                         icu_error_family const& family) {
    return convert_whole<from_unicode>(use, source, size, family);
}

ustring to_ustring(converter_use use, char const* source, std::size_t size,
                   icu_error_family const& family) {
    return convert_whole<to_unicode>(use, source, size, family);
}

std::size_t from_ustring_into(converter_use use, char* destination, std::size_t capacity,
                              char16_t const* source, std::size_t size,
                              icu_error_family const& family) {
    return convert_into<from_unicode>(use, destination, capacity, source, size, family);
}

std::size_t to_ustring_into(converter_use use, char16_t* destination, std::size_t capacity,
                            char const* source, std::size_t size, icu_error_family const& family) {
    return convert_into<to_unicode>(use, destination, capacity, source, size, family);
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl
