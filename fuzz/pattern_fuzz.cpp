#include <fl/i18n/lcctype/pattern_match.hpp>
#include <fl/i18n/lcctype/regex_exception.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// Expressions come from callers and from wildcards in path names: any pattern and text, in any
// mode, must give a status or an exception of the family, and both forms must agree.
// The first byte is the mode; the rest are UTF-16 units, a NUL unit between pattern and text.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 1) {
        return 0;
    }
    unsigned int const mode = data[0] & 0xFU;
    fl::i18n::ustring units((size - 1) / 2, u'\0');
    std::memcpy(&units[0], data + 1, units.size() * 2);  // the input need not be aligned
    auto const nul = std::find(units.begin(), units.end(), u'\0');
    fl::i18n::ustring const pattern(units.begin(), nul);
    fl::i18n::ustring const text(nul == units.end() ? nul : nul + 1, units.end());

    fl::i18n::pattern_status status;
    std::int32_t result = 0;
    bool const matched =
        status.compile(pattern, mode) == fl::i18n::pattern_status::ok && status.match(text, result);
    try {
        fl::i18n::pattern_match const thrower(pattern, mode);
        if (thrower.match(text) != matched) {
            std::abort();
        }
    } catch (fl::i18n::RegexExceptionBase const& e) {
        if (e.get_id() !=
            (status.get_status() == fl::i18n::pattern_status::ok ? result : status.get_status())) {
            std::abort();
        }
    }
    return 0;
}
