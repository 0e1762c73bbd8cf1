#ifndef OVI18N_TOOL_PIECE_CONVERTER_HPP
#define OVI18N_TOOL_PIECE_CONVERTER_HPP

#include "text_position.hpp"

#include <fl/i18n.hpp>

#include <cstddef>
#include <memory>

namespace ovi18n_tool {

// A buffer that is not cleared when it grows, since every element is written before it is read.
template <class T>
struct raw_buffer {
    std::unique_ptr<T[]> data;
    std::size_t size = 0;
    std::size_t capacity = 0;

    void reserve(std::size_t wanted) {
        if (wanted > capacity) {
            std::unique_ptr<T[]> bigger(new T[wanted]);
            std::copy(data.get(), data.get() + size, bigger.get());
            data = std::move(bigger);
            capacity = wanted;
        }
    }
};

// What became of one piece of input.
struct converted_piece {
    // Decoded text, up to a bad sequence; left here when it was not encoded.
    raw_buffer<char16_t> text;
    bool failed = false;    // decoding stopped at a bad sequence
    std::size_t taken = 0;  // bytes of the piece the decoder had taken when it stopped
    // The text encoded, with what it does to the position, when the encoder took all of it.
    bool encoded = false;
    raw_buffer<char> bytes;
    text_span span;
};

// Decodes size bytes, flushing at the end when told; with an encoder, also encodes all that was
// decoded, unless the encoder refuses a character, which is left for the caller to find.
converted_piece convert_piece(fl::i18n::stream_codecvt_string_to_ustring const& decoder,
                              fl::i18n::codecvt_ustring_to_string const* encoder, char const* data,
                              std::size_t size, bool flush);

}  // namespace ovi18n_tool

#endif
