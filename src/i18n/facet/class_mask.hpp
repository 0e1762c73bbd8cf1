#ifndef FL_I18N_FACET_CLASS_MASK_HPP
#define FL_I18N_FACET_CLASS_MASK_HPP

#include <locale>

namespace fl {
namespace i18n {
namespace facet {
namespace detail {

using std_mask = std::ctype_base::mask;

// Each standard class bit stands for one POSIX class bit of lcctype::scan; blank has none.
unsigned int to_posix_mask(std_mask m);
std_mask to_std_mask(unsigned int posix);

// The classes of one code point as the range form of ctype::is reports them: print is never
// among them.
std_mask range_mask_of(char32_t c);

}  // namespace detail
}  // namespace facet
}  // namespace i18n
}  // namespace fl

#endif
