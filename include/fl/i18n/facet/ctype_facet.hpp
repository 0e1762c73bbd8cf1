#ifndef FL_I18N_FACET_CTYPE_FACET_HPP
#define FL_I18N_FACET_CTYPE_FACET_HPP

#include <fl/i18n/export.hpp>

#include <locale>
#include <memory>
#include <string>

namespace fl {
namespace i18n {

class OvLocale;

namespace facet {

template <class CharT>
class ctype_facet;

namespace detail {
struct widen_table;
}

// Character knowledge for char16_t streams and algorithms: classes and case from ICU, widening
// and narrowing through an ICU converter on the encoding of the locale it was built on. Classes
// follow lcctype::scan, with each std::ctype_base bit standing for one POSIX class.
//
// Widening reads a table of the 256 bytes made by ICU when the facet is built; narrowing, and
// widening a range in a multi-byte encoding, use the calling thread's own converter on the
// encoding. Both may throw the conversion exceptions (CvtInvalidEncodingName for a bad encoding
// name, at first use); the facet is safe to share between threads. Owned by the locale it is
// installed in.
template <>
class FL_I18N_API ctype_facet<char16_t> : public std::ctype_byname<char16_t> {
public:
    // The encoding is read now; later changes of the locale do not reach the facet.
    explicit ctype_facet(OvLocale const& locale);

    std::string const& encoding_name() const noexcept { return encoding_name_; }

protected:
    ~ctype_facet() override;

    bool do_is(mask m, char16_t c) const override;
    // Never sets print; a surrogate pair gets the mask of its code point at both positions.
    char16_t const* do_is(char16_t const* lo, char16_t const* hi, mask* vec) const override;
    char16_t const* do_scan_is(mask m, char16_t const* lo, char16_t const* hi) const override;
    char16_t const* do_scan_not(mask m, char16_t const* lo, char16_t const* hi) const override;
    char16_t do_toupper(char16_t c) const override;
    char16_t const* do_toupper(char16_t* lo, char16_t const* hi) const override;
    char16_t do_tolower(char16_t c) const override;
    char16_t const* do_tolower(char16_t* lo, char16_t const* hi) const override;
    char16_t do_widen(char c) const override;
    char const* do_widen(char const* lo, char const* hi, char16_t* to) const override;
    // dfault is not used: what the encoding cannot hold becomes its substitution byte.
    char do_narrow(char16_t c, char dfault) const override;
    char16_t const* do_narrow(char16_t const* lo, char16_t const* hi, char dfault,
                              char* to) const override;

private:
    std::string encoding_name_;
    std::unique_ptr<detail::widen_table const> widen_table_;
};

}  // namespace facet
}  // namespace i18n
}  // namespace fl

#endif
