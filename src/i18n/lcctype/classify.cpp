#include <fl/i18n/lcctype/classify.hpp>

#include "i18n/lcctype/general_category.hpp"

#include <unicode/uchar.h>

namespace fl {
namespace i18n {
namespace lcctype {

namespace {

// ICU answers with a UBool; only exactly 1 counts as true.
inline bool yes(UBool answer) {
    return answer == 1;
}

inline UChar32 code(char32_t c) {
    return static_cast<UChar32>(c);
}

}  // namespace

bool iscntrl(char32_t c) {
    return yes(u_iscntrl(code(c)));
}

bool isspace(char32_t c) {
    return yes(u_isUWhiteSpace(code(c)));
}

bool isbreakable_space(char32_t c) {
    return yes(u_isWhitespace(code(c)));
}

bool isalpha(char32_t c) {
    return yes(u_isalpha(code(c)));
}

bool isdigit(char32_t c) {
    return yes(u_isdigit(code(c)));
}

bool isalnum(char32_t c) {
    return yes(u_isalnum(code(c)));
}

bool ispunct(char32_t c) {
    return yes(u_ispunct(code(c)));
}

bool isxdigit(char32_t c) {
    return yes(u_isxdigit(code(c)));
}

// u_isgraph accepts private-use characters (and, in older ICU releases, format ones); callers rely
// on those being invisible, so the test goes by general category instead.
bool isgraph(char32_t c) {
    return detail::in_categories(c, detail::graph_categories);
}

bool isprint(char32_t c) {
    return yes(u_isprint(code(c)));
}

bool islower(char32_t c) {
    return yes(u_islower(code(c)));
}

bool isupper(char32_t c) {
    return yes(u_isupper(code(c)));
}

char32_t tolower(char32_t c) {
    return static_cast<char32_t>(u_tolower(code(c)));
}

char32_t toupper(char32_t c) {
    return static_cast<char32_t>(u_toupper(code(c)));
}

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl
