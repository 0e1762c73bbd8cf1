#ifndef FL_I18N_LCCTYPE_GENERAL_CATEGORY_HPP
#define FL_I18N_LCCTYPE_GENERAL_CATEGORY_HPP

#include <unicode/uchar.h>

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// Sets of general categories, one bit per category number.

// Letters, marks, numbers, punctuation and symbols: what is visible. The set also holds bit 30,
// which names no category, so it never matters.
constexpr std::uint32_t graph_categories = 0x7FF80FFE;
static_assert(U_CHAR_CATEGORY_COUNT == 30 &&
                  (graph_categories & ~U_MASK(U_CHAR_CATEGORY_COUNT)) ==
                      (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_P_MASK | U_GC_S_MASK),
              "graph categories");

// Punctuation as the POSIX class sees it: all of P and the math, currency and modifier
// symbols, but not the other symbols.
constexpr std::uint32_t punct_categories = 0x37F80000;
static_assert(punct_categories == (U_GC_P_MASK | U_GC_SM_MASK | U_GC_SC_MASK | U_GC_SK_MASK),
              "punctuation categories");

inline bool in_categories(char32_t c, std::uint32_t categories) {
    return (U_MASK(u_charType(static_cast<UChar32>(c))) & categories) != 0;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
