#include "i18n/lcctype/posix_class_test.hpp"

#include <fl/i18n/lcctype/posix_class.hpp>

#include "i18n/lcctype/general_category.hpp"

#include <unicode/uchar.h>

namespace fl {
namespace i18n {
namespace lcctype {
namespace detail {

namespace {

inline bool has_all(unsigned int mask, unsigned int bits) {
    return (mask & bits) == bits;
}

}  // namespace

// Each bit is tested by itself, so the mask is a union of classes. The compounds graph and alnum
// are checked before their single parts; the order matters for cost only.
bool in_posix_classes(unsigned int mask, char32_t c) {
    using namespace posix_class;
    UChar32 const u = static_cast<UChar32>(c);
    return ((mask & cntrl) && u_iscntrl(u) == 1) || ((mask & print) && u_isprint(u) == 1) ||
           (has_all(mask, graph) && u_isgraph(u) == 1) ||
           ((mask & punct) && in_categories(c, punct_categories)) ||
           ((mask & space) && u_isUWhiteSpace(u) == 1) ||
           (has_all(mask, alnum) && u_isalnum(u) == 1) || ((mask & alpha) && u_isalpha(u) == 1) ||
           ((mask & xdigit) && u_digit(u, 16) >= 0) || ((mask & digit) && u_isdigit(u) == 1) ||
           ((mask & lower) && u_islower(u) == 1) || ((mask & upper) && u_isupper(u) == 1);
}

bool not_in_posix_classes(unsigned int mask, char32_t c) {
    return !in_posix_classes(mask, c);
}

}  // namespace detail
}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
