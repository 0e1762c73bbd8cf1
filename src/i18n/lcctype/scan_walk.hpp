#ifndef FL_I18N_LCCTYPE_SCAN_WALK_HPP
#define FL_I18N_LCCTYPE_SCAN_WALK_HPP

#include <boost/function.hpp>

#include <unicode/utf16.h>

#include <type_traits>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

using char_predicate = boost::function<bool(char32_t)>;

// Only pointers can be null; string iterators always stand somewhere.
template <class Iterator>
bool is_null_position(Iterator const& position) {
    if constexpr (std::is_pointer<Iterator>::value) {
        return position == nullptr;
    } else {
        return false;
    }
}

// The walk shared by scan and the ctype facet. A high surrogate is joined with the unit after it
// only when the unit two places on is a low surrogate; an ordinary pair followed by anything else
// is tested half by half. The end test is for equality only, so a join that steps over last
// walks on beyond it. Callers depend on these answers, so the walk stays as it is.
template <class Iterator>
Iterator scan_walk(Iterator first, Iterator last, char_predicate const& hit) {
    if (is_null_position(first) || is_null_position(last) || first == last) {
        return last;
    }
    Iterator position = first;
    for (;;) {
        char16_t const unit = *position;
        Iterator next = position + 1;
        char32_t value = unit;
        if (U16_IS_LEAD(unit) && U16_IS_TRAIL(*(position + 2))) {
            value = static_cast<char32_t>(U16_GET_SUPPLEMENTARY(unit, *next));
            next = position + 2;
        }
        if (hit(value)) {
            return position;
        }
        if (next == last) {
            return last;
        }
        position = next;
    }
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
