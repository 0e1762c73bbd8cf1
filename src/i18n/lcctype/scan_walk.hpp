#ifndef FL_I18N_LCCTYPE_SCAN_WALK_HPP
#define FL_I18N_LCCTYPE_SCAN_WALK_HPP

#include <unicode/utf16.h>

#include <type_traits>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// Only pointers can be null; string iterators always stand somewhere.
template <class Iterator>
bool is_null_position(Iterator const& position) {
    if constexpr (std::is_pointer<Iterator>::value) {
        return position == nullptr;
    } else {
        return false;
    }
}

// The walk of scan. A high surrogate is joined with the unit after it only when the unit two
// places on is a low surrogate; an ordinary pair followed by anything else is tested half by
// half. The end test is for equality only, so a join that steps over last walks on beyond it.
// Callers of scan depend on these answers, so the walk stays as it is.
//
// With bounded set, a unit at or past last counts as not a low surrogate, so the walk never reads
// outside [first, last) and never returns beyond last; wherever the plain walk stays inside the
// range, both give the same answer. The ctype facet needs this: a standard facet must not read
// outside the range it is given, so it departs from the plain walk there for memory safety.
//
// The class test is a template argument, so that it is inlined into the loop: the walk costs
// little more than the one classification per character that any hand-written loop pays.
template <bool bounded = false, class Iterator, class ClassTest>
Iterator scan_walk(Iterator first, Iterator last, ClassTest const& hit) {
    if (is_null_position(first) || is_null_position(last) || first == last) {
        return last;
    }
    Iterator position = first;
    for (;;) {
        char16_t const unit = *position;
        Iterator next = position + 1;
        char32_t value = unit;
        bool const trail_in_reach = !bounded || last - position > 2;
        if (U16_IS_LEAD(unit) && trail_in_reach && U16_IS_TRAIL(*(position + 2))) {
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
