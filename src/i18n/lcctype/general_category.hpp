#ifndef FL_I18N_LCCTYPE_GENERAL_CATEGORY_HPP
#define FL_I18N_LCCTYPE_GENERAL_CATEGORY_HPP

#include <unicode/uchar.h>

#include <cstdint>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

// Sets of general categories, one bit per category number.

// Every category there is.
constexpr std::uint32_t all_categories = U_MASK(U_CHAR_CATEGORY_COUNT) - 1;

// Letters, marks, numbers, punctuation and symbols: what is visible. The set also holds bit 30,
// which names no category, so it never matters.
constexpr std::uint32_t graph_categories = 0x7FF80FFE;
static_assert(U_CHAR_CATEGORY_COUNT == 30 &&
                  (graph_categories & all_categories) ==
                      (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_P_MASK | U_GC_S_MASK),
              "graph categories");

// Punctuation as the POSIX class sees it: all of P and the math, currency and modifier
// symbols, but not the other symbols.
constexpr std::uint32_t punct_categories = 0x37F80000;
static_assert(punct_categories == (U_GC_P_MASK | U_GC_SM_MASK | U_GC_SC_MASK | U_GC_SK_MASK),
              "punctuation categories");

// ICU defines most of its classification functions as sets of general categories. Spelled out
// here, one u_charType answers any number of them at once; the exhaustive class test of the
// suite holds each set to its ICU function over all code points.
constexpr std::uint32_t u_iscntrl_categories =
    U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
constexpr std::uint32_t u_isprint_categories = all_categories & ~U_GC_C_MASK;
// Unlike graph_categories, private-use characters are in.
constexpr std::uint32_t u_isgraph_categories =
    all_categories & ~(U_GC_CC_MASK | U_GC_CF_MASK | U_GC_CS_MASK | U_GC_CN_MASK | U_GC_Z_MASK);
constexpr std::uint32_t u_isalnum_categories = U_GC_L_MASK | U_GC_ND_MASK;
constexpr std::uint32_t u_isalpha_categories = U_GC_L_MASK;
constexpr std::uint32_t u_isdigit_categories = U_GC_ND_MASK;
constexpr std::uint32_t u_islower_categories = U_GC_LL_MASK;
constexpr std::uint32_t u_isupper_categories = U_GC_LU_MASK;

inline std::uint32_t category_of(char32_t c) {
    return U_MASK(u_charType(static_cast<UChar32>(c)));
}

inline bool in_categories(char32_t c, std::uint32_t categories) {
    return (category_of(c) & categories) != 0;
}

// u_digit(c, 16) >= 0 for c of the given category. u_digit knows only decimal digits, which are
// all of category Nd, and the Latin letters in their ASCII and fullwidth forms; anything else is
// answered without the call.
inline bool is_hex_digit(char32_t c, std::uint32_t category) {
    bool const latin_letter = (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z') ||
                              (c >= 0xFF21 && c <= 0xFF3A) || (c >= 0xFF41 && c <= 0xFF5A);
    return ((category & U_GC_ND_MASK) != 0 || latin_letter) &&
           u_digit(static_cast<UChar32>(c), 16) >= 0;
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
