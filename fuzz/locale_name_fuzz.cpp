#include <fl/i18n/lcmgmt/locale_name.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Locale names come from the environment and from callers: any bytes must give either a parsed
// name or the empty record, and the forms built from a parsed name must parse back the same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const name(reinterpret_cast<char const*>(data), size);
    fl::i18n::lcmgmt::locale_name_context const parsed = fl::i18n::lcmgmt::parse_locale_name(name);
    if (parsed.empty()) {
        return 0;
    }
    std::string const canonical = parsed.canonical_name();
    fl::i18n::lcmgmt::locale_name_context const again =
        fl::i18n::lcmgmt::parse_locale_name(canonical);
    if (again.language != parsed.language || again.script != parsed.script ||
        again.region != parsed.region) {
        std::abort();
    }
    return 0;
}
