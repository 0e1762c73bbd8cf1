#ifndef FL_I18N_FACET_NUMPUNCT_FACET_HPP
#define FL_I18N_FACET_NUMPUNCT_FACET_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <locale>
#include <string>

namespace fl {
namespace i18n {
namespace facet {

template <class CharT>
class numpunct_facet;

// Number punctuation for char16_t: always that of the classic locale, whatever the active
// locale, so numbers printed through it read the same everywhere. Owned by the locale it is
// installed in.
template <>
class FL_I18N_API numpunct_facet<char16_t> : public std::numpunct_byname<char16_t> {
public:
    numpunct_facet();

protected:
    ~numpunct_facet() override;

    char16_t do_decimal_point() const override;
    char16_t do_thousands_sep() const override;
    std::string do_grouping() const override;
    ustring do_truename() const override;
    ustring do_falsename() const override;

private:
    char16_t decimal_point_;
    char16_t thousands_sep_;
    std::string grouping_;
    ustring truename_;
    ustring falsename_;
};

}  // namespace facet
}  // namespace i18n
}  // namespace fl

#endif
