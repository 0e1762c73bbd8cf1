#include <fl/i18n/lcctype/trim.hpp>

namespace fl {
namespace i18n {

// find_first_not_of and find_last_not_of work unit by unit, which is what makes chars a set of
// UTF-16 units rather than of characters.

ustring& trim_left(ustring& s, ustring const& chars) {
    s.erase(0, s.find_first_not_of(chars));
    return s;
}

ustring& trim_right(ustring& s, ustring const& chars) {
    // npos + 1 wraps to 0: nothing is kept when every unit is in the set.
    s.erase(s.find_last_not_of(chars) + 1);
    return s;
}

ustring& trim(ustring& s, ustring const& chars) {
    return trim_left(trim_right(s, chars), chars);
}

ustring trim_copy_left(ustring const& s, ustring const& chars) {
    std::size_t const first = s.find_first_not_of(chars);
    return first == ustring::npos ? ustring() : s.substr(first);
}

ustring trim_copy_right(ustring const& s, ustring const& chars) {
    return s.substr(0, s.find_last_not_of(chars) + 1);
}

ustring trim_copy(ustring const& s, ustring const& chars) {
    std::size_t const first = s.find_first_not_of(chars);
    if (first == ustring::npos) {
        return ustring();
    }
    return s.substr(first, s.find_last_not_of(chars) + 1 - first);
}

}  // namespace i18n
}  // namespace fl
