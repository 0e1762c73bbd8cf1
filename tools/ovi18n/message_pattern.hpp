#ifndef OVI18N_TOOL_MESSAGE_PATTERN_HPP
#define OVI18N_TOOL_MESSAGE_PATTERN_HPP

#include <fl/i18n/ustring.hpp>

#include <string>
#include <vector>

namespace ovi18n_tool {

// A catalog text read as the library formats it: apostrophes auto-quoted, then an ICU
// MessageFormat in en_US_POSIX.
struct message_pattern {
    bool valid = false;
    std::vector<std::string> holes;  // distinct names, numbered ("0") or named, sorted
    // Apostrophes that don't come out as written: one quoting a brace, as in '{0}', or ''.
    bool apostrophes_changed = false;
};

message_pattern read_message_pattern(fl::i18n::ustring const& text);

}  // namespace ovi18n_tool

#endif
