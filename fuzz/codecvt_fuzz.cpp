#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/ustring.hpp>

#include "fuzz_encodings.hpp"
#include "guarded_buffer.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

// Any bytes go through the strict and the substituting converters of one encoding, in both
// directions. The substituting ones always succeed; the strict ones succeed or throw a
// conversion exception, and where they succeed they agree with the substituting ones; measured
// sizes are the converted sizes; valid text that encodes decodes back to itself.

namespace {

using fl::i18n::codecvt_string_to_ustring;
using fl::i18n::codecvt_ustring_to_string;
using fl::i18n::ustring;

struct encoding_converters {
    explicit encoding_converters(char const* name)
        : strict_decoder(name, false),
          lenient_decoder(name, true),
          strict_encoder(name, false),
          lenient_encoder(name, true) {}
    codecvt_string_to_ustring strict_decoder;
    codecvt_string_to_ustring lenient_decoder;
    codecvt_ustring_to_string strict_encoder;
    codecvt_ustring_to_string lenient_encoder;
};

// Converters are reset after every conversion, so one set per encoding serves every input.
encoding_converters& converters_for(std::size_t index) {
    static std::unique_ptr<encoding_converters> made[fuzz_encoding_count];
    if (!made[index]) {
        made[index] = std::make_unique<encoding_converters>(fuzz_encodings[index]);
    }
    return *made[index];
}

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

template <class To, class From>
void check_measure(fl::i18n::converter<To, From> const& converter, From const* text,
                   std::size_t size, std::basic_string<To> const& converted) {
    require(converter.do_get_destination_size(text, size) == converted.size());
    // A short destination still learns the whole length.
    To small[3];
    require(converter.do_convert(small, 3, text, size) == converted.size());
}

// Unpaired surrogates become U+FFFD, so the text is valid UTF-16.
ustring make_valid(guarded_buffer<char16_t> const& units) {
    ustring text(units.data(), units.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char16_t const unit = text[i];
        bool const lead = unit >= 0xD800 && unit <= 0xDBFF;
        bool const trail = unit >= 0xDC00 && unit <= 0xDFFF;
        if (lead && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
            ++i;
        } else if (lead || trail) {
            text[i] = 0xFFFD;
        }
    }
    return text;
}

void check_decoding(encoding_converters& c, std::size_t index, guarded_buffer<char> const& bytes) {
    ustring const lenient = c.lenient_decoder.do_convert(bytes.data(), bytes.size());
    check_measure(c.lenient_decoder, bytes.data(), bytes.size(), lenient);
    ustring strict;
    try {
        strict = c.strict_decoder.do_convert(bytes.data(), bytes.size());
    } catch (fl::i18n::CvtInvalidCharacter const&) {
        return;
    } catch (fl::i18n::CvtConversionFailure const&) {
        return;
    }
    require(strict == lenient);
    if (index < fuzz_bijective_encodings) {
        std::string const again = c.strict_encoder.do_convert(strict.data(), strict.size());
        require(again == std::string(bytes.data(), bytes.size()));
    }
}

void check_encoding(encoding_converters& c, guarded_buffer<char16_t> const& units) {
    std::string const lenient = c.lenient_encoder.do_convert(units.data(), units.size());
    check_measure(c.lenient_encoder, units.data(), units.size(), lenient);

    ustring const text = make_valid(units);
    guarded_buffer<char16_t> const valid(text.data(), text.size());
    std::string encoded;
    try {
        encoded = c.strict_encoder.do_convert(valid.data(), valid.size());
    } catch (fl::i18n::CvtInvalidCharacter const&) {
        return;
    }
    require(encoded == c.lenient_encoder.do_convert(valid.data(), valid.size()));
    guarded_buffer<char> const bytes(encoded.data(), encoded.size());
    require(c.strict_decoder.do_convert(bytes.data(), bytes.size()) == text);
}

}  // namespace

// The first byte picks the encoding; the rest is the text, as bytes and as UTF-16 units.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    std::size_t const index = data[0] % fuzz_encoding_count;
    encoding_converters& converters = converters_for(index);
    char const* const text = reinterpret_cast<char const*>(data + 1);
    std::size_t const length = size - 1;

    check_decoding(converters, index, guarded_buffer<char>(text, length));
    ustring units(length / 2, u'\0');
    std::memcpy(&units[0], text, units.size() * sizeof(char16_t));
    check_encoding(converters, guarded_buffer<char16_t>(units.data(), units.size()));
    return 0;
}
