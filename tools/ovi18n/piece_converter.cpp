#include "piece_converter.hpp"

namespace ovi18n_tool {

converted_piece convert_piece(fl::i18n::stream_codecvt_string_to_ustring const& decoder,
                              fl::i18n::codecvt_ustring_to_string const* encoder, char const* data,
                              std::size_t size, bool flush) {
    converted_piece piece;
    raw_buffer<char16_t>& text = piece.text;
    // A unit a byte is enough but for characters beyond the BMP made from fewer than two bytes;
    // the loop grows the text then.
    text.reserve(size + 2);
    char16_t* to = text.data.get();
    char const* from = data;
    try {
        while (
            decoder.do_convert(&to, text.data.get() + text.capacity, &from, data + size, flush)) {
            text.size = static_cast<std::size_t>(to - text.data.get());
            text.reserve(2 * text.capacity);
            to = text.data.get() + text.size;
        }
    } catch (fl::i18n::CvtExceptionBase const&) {
        piece.failed = true;
        piece.taken = static_cast<std::size_t>(from - data);
    }
    text.size = static_cast<std::size_t>(to - text.data.get());
    if (encoder == nullptr || text.size == 0) {
        return piece;
    }
    try {
        raw_buffer<char>& bytes = piece.bytes;
        bytes.reserve(3 * text.size + 16);
        std::size_t needed =
            encoder->do_convert(bytes.data.get(), bytes.capacity, text.data.get(), text.size);
        if (needed > bytes.capacity) {
            // Nothing was kept of the first try; the buffer only has to grow.
            bytes = raw_buffer<char>();
            bytes.reserve(needed);
            needed =
                encoder->do_convert(bytes.data.get(), bytes.capacity, text.data.get(), text.size);
        }
        bytes.size = needed;
    } catch (fl::i18n::CvtExceptionBase const&) {
        return piece;
    }
    piece.encoded = true;
    piece.span = measure_text(text.data.get(), text.size);
    text = raw_buffer<char16_t>();
    return piece;
}

}  // namespace ovi18n_tool
