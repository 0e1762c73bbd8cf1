#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/codecvt/stream_codecvt.hpp>

#include "fuzz_encodings.hpp"
#include "guarded_buffer.hpp"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <typeinfo>
#include <vector>

// A text fed to a stream converter in pieces cut anywhere, into output room of any size, must
// give what the one-shot converter gives for the whole text, or fail with the same exception.

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// What a conversion gave: the text, or the type of the exception it threw.
template <class Char>
struct outcome {
    std::basic_string<Char> text;
    std::type_info const* failure = nullptr;
};

template <class Char, class Run>
outcome<Char> capture(Run run) {
    outcome<Char> result;
    try {
        result.text = run();
    } catch (fl::i18n::CvtInvalidCharacter const& e) {
        result.failure = &typeid(e);
    } catch (fl::i18n::CvtConversionFailure const& e) {
        result.failure = &typeid(e);
    }
    return result;
}

// Each piece is copied to its own guarded buffer, so that reading past a piece faults too.
template <class To, class From>
std::basic_string<To> convert_in_pieces(fl::i18n::stream_converter<To, From> const& converter,
                                        std::basic_string<From> const& text,
                                        std::vector<std::size_t> const& cuts, std::size_t room) {
    std::basic_string<To> result;
    std::vector<To> out(room);
    std::size_t start = 0;
    for (std::size_t i = 0; i <= cuts.size(); ++i) {
        std::size_t const end = i < cuts.size() ? cuts[i] : text.size();
        bool const flush = i == cuts.size();
        guarded_buffer<From> const piece(text.data() + start, end - start);
        From const* from = piece.data();
        bool full = true;
        while (full) {
            To* to = out.data();
            full = converter.do_convert(&to, out.data() + room, &from, piece.end(), flush);
            result.append(out.data(), to);
        }
        require(from == piece.end());
        start = end;
    }
    return result;
}

template <class To, class From, class OneShot, class Stream>
void check_pieces(OneShot const& one_shot, Stream const& stream,
                  std::basic_string<From> const& text, FuzzedDataProvider& provider) {
    std::vector<std::size_t> cuts;
    std::size_t const count = provider.ConsumeIntegralInRange<std::size_t>(0, 16);
    for (std::size_t i = 0; i < count; ++i) {
        cuts.push_back(provider.ConsumeIntegralInRange<std::size_t>(0, text.size()));
    }
    std::sort(cuts.begin(), cuts.end());
    std::size_t const room = provider.ConsumeIntegralInRange<std::size_t>(1, 64);

    guarded_buffer<From> const whole(text.data(), text.size());
    outcome<To> const expected =
        capture<To>([&] { return one_shot.do_convert(whole.data(), whole.size()); });
    outcome<To> const streamed =
        capture<To>([&] { return convert_in_pieces(stream, text, cuts, room); });
    require(expected.failure == streamed.failure ||
            (expected.failure && streamed.failure && *expected.failure == *streamed.failure));
    require(expected.failure || streamed.text == expected.text);
}

}  // namespace

// Two bytes choose encoding, direction and strictness; then the cuts and the room; the rest is
// the text.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider provider(data, size);
    char const* const encoding =
        fuzz_encodings[provider.ConsumeIntegralInRange<std::size_t>(0, fuzz_encoding_count - 1)];
    bool const decode = provider.ConsumeBool();
    bool const lenient = provider.ConsumeBool();
    std::size_t const seed_bytes = 40;
    std::vector<std::uint8_t> const choices = provider.ConsumeBytes<std::uint8_t>(seed_bytes);
    std::string const bytes = provider.ConsumeRemainingBytesAsString();
    FuzzedDataProvider cutting(choices.data(), choices.size());

    if (decode) {
        fl::i18n::codecvt_string_to_ustring const one_shot(encoding, lenient);
        fl::i18n::stream_codecvt_string_to_ustring const stream(encoding, lenient);
        check_pieces<char16_t, char>(one_shot, stream, bytes, cutting);
    } else {
        std::u16string units(bytes.size() / 2, u'\0');
        std::memcpy(&units[0], bytes.data(), units.size() * sizeof(char16_t));
        fl::i18n::codecvt_ustring_to_string const one_shot(encoding, lenient);
        fl::i18n::stream_codecvt_ustring_to_string const stream(encoding, lenient);
        check_pieces<char, char16_t>(one_shot, stream, units, cutting);
    }
    return 0;
}
