#include <fl/i18n/facet/numpunct_facet.hpp>

#include "i18n/facet/std_char16_support.hpp"

namespace fl {
namespace i18n {
namespace facet {

namespace {

// The classic punctuation is ASCII, so a byte widens by plain conversion.
char16_t widen(char c) {
    return static_cast<char16_t>(static_cast<unsigned char>(c));
}

ustring widen(std::string const& text) {
    ustring wide;
    wide.reserve(text.size());
    for (char c : text) {
        wide.push_back(widen(c));
    }
    return wide;
}

std::numpunct<char> const& classic_punctuation() {
    return std::use_facet<std::numpunct<char>>(std::locale::classic());
}

}  // namespace

numpunct_facet<char16_t>::numpunct_facet()
    : std::numpunct_byname<char16_t>("C", 0),
      decimal_point_(widen(classic_punctuation().decimal_point())),
      thousands_sep_(widen(classic_punctuation().thousands_sep())),
      grouping_(classic_punctuation().grouping()),
      truename_(widen(classic_punctuation().truename())),
      falsename_(widen(classic_punctuation().falsename())) {}

numpunct_facet<char16_t>::~numpunct_facet() = default;

char16_t numpunct_facet<char16_t>::do_decimal_point() const {
    return decimal_point_;
}

char16_t numpunct_facet<char16_t>::do_thousands_sep() const {
    return thousands_sep_;
}

std::string numpunct_facet<char16_t>::do_grouping() const {
    return grouping_;
}

ustring numpunct_facet<char16_t>::do_truename() const {
    return truename_;
}

ustring numpunct_facet<char16_t>::do_falsename() const {
    return falsename_;
}

}  // namespace facet
}  // namespace i18n
}  // namespace fl
