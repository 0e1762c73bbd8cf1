#include "line_boundary.hpp"

#include <unicode/ucnv.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace ovi18n_tool {
namespace {

using converter_ptr = std::unique_ptr<UConverter, void (*)(UConverter*)>;

// Incomplete sequences are followed this far; an encoding whose sequences branch more than this
// is simply decoded in one piece.
constexpr int probe_budget = 200000;

struct probe {
    UConverter* converter;
    int budget = probe_budget;

    // Feeds the bytes to a reset converter without ending the text; false when the probe is
    // spent or ICU fails for another reason than a bad sequence.
    bool feed(std::vector<char> const& bytes, UChar* out, std::int32_t* offsets,
              std::int32_t& produced) {
        if (--budget < 0) {
            return false;
        }
        ucnv_resetToUnicode(converter);
        UErrorCode status = U_ZERO_ERROR;
        UChar* target = out;
        char const* source = bytes.data();
        ucnv_toUnicode(converter, &target, out + 16, &source, bytes.data() + bytes.size(), offsets,
                       false, &status);
        produced = static_cast<std::int32_t>(target - out);
        return U_SUCCESS(status);
    }

    std::int32_t pending() {
        UErrorCode status = U_ZERO_ERROR;
        return ucnv_toUCountPending(converter, &status);
    }

    // Every incomplete sequence that starts with prefix lets a line feed after it stand alone.
    bool line_feed_stands_alone_after(std::vector<char>& prefix) {
        UChar out[16];
        std::int32_t offsets[16];
        std::int32_t produced = 0;
        prefix.push_back('\n');
        if (!feed(prefix, out, offsets, produced) || produced == 0 || out[produced - 1] != u'\n' ||
            offsets[produced - 1] != static_cast<std::int32_t>(prefix.size() - 1) ||
            pending() != 0) {
            return false;
        }
        prefix.pop_back();
        for (int byte = 0; byte < 256; ++byte) {
            prefix.push_back(static_cast<char>(byte));
            // Only a sequence held whole is followed further: when a byte was refused, the one
            // still held started afresh, and the search from the empty prefix meets it anyway.
            bool const incomplete = feed(prefix, out, offsets, produced) &&
                                    pending() == static_cast<std::int32_t>(prefix.size());
            if (budget < 0 || (incomplete && !line_feed_stands_alone_after(prefix))) {
                return false;
            }
            prefix.pop_back();
        }
        return true;
    }
};

enum class verdict { yes, no, ask_the_tables };

// Single bytes have nothing to continue, and in UTF-8 and CESU-8 only 0x80-0xBF continue a
// sequence; a multi-byte table has to be probed; anything with state between characters can't
// be cut without it.
verdict by_type(UConverterType type) {
    switch (type) {
        case UCNV_SBCS:
        case UCNV_LATIN_1:
        case UCNV_US_ASCII:
        case UCNV_UTF8:
        case UCNV_CESU8:
            return verdict::yes;
        case UCNV_MBCS:
            return verdict::ask_the_tables;
        default:
            return verdict::no;
    }
}

}  // namespace

bool cuts_after_line_feed(std::string const& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    converter_ptr converter(ucnv_open(encoding.c_str(), &status), ucnv_close);
    if (U_FAILURE(status)) {
        return false;
    }
    verdict const by_its_type = by_type(ucnv_getType(converter.get()));
    if (by_its_type != verdict::ask_the_tables) {
        return by_its_type == verdict::yes;
    }
    // Bad sequences are skipped so that probing goes on past them; only what happens to the line
    // feed counts.
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_SKIP, nullptr, nullptr, nullptr,
                        &status);
    if (U_FAILURE(status)) {
        return false;
    }
    probe p{converter.get()};
    std::vector<char> prefix;
    return p.line_feed_stands_alone_after(prefix);
}

}  // namespace ovi18n_tool
