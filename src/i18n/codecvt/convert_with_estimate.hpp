#ifndef FL_I18N_CODECVT_CONVERT_WITH_ESTIMATE_HPP
#define FL_I18N_CODECVT_CONVERT_WITH_ESTIMATE_HPP

#include <algorithm>
#include <cstddef>
#include <string>

namespace fl {
namespace i18n {
namespace detail {

constexpr std::size_t estimate_stack_units = 1024;
constexpr std::size_t estimate_first_block_units = 32768;

// Whole conversion over a buffer routine that returns the length it needs:
// fill(destination, capacity, source, size) -> length needed. A short source is tried on the
// stack, a long one on a block as large as the source (capped); only a result that does not
// fit there costs a second, exact fill.
template <class To, class From, class Fill>
std::basic_string<To> convert_with_estimate(From const* source, std::size_t size, Fill fill) {
    if (size <= estimate_stack_units) {
        To buffer[estimate_stack_units];
        std::size_t const needed = fill(buffer, estimate_stack_units, source, size);
        if (needed <= estimate_stack_units) {
            return std::basic_string<To>(buffer, needed);
        }
        std::basic_string<To> result(needed, To());
        fill(&result[0], needed, source, size);
        return result;
    }
    std::basic_string<To> result(std::min(size, estimate_first_block_units), To());
    std::size_t const needed = fill(&result[0], result.size(), source, size);
    if (needed <= result.size()) {
        result.resize(needed);
        return result;
    }
    result.assign(needed, To());
    fill(&result[0], needed, source, size);
    return result;
}

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
