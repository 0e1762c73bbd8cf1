#ifndef FL_I18N_LCCTYPE_STRING_TRANSFORM_HPP
#define FL_I18N_LCCTYPE_STRING_TRANSFORM_HPP

#include <fl/i18n/export.hpp>

#include <cstddef>

namespace fl {
namespace i18n {

class OvLocale;

// Full case mappings of the root locale and the four Unicode normal forms.
struct to_upper {};
struct to_lower {};
struct to_nfc {};
struct to_nfd {};
struct to_nfkc {};
struct to_nfkd {};

// Case mappings with the rules of a locale's ctype category (Turkish dotted i, Lithuanian
// dots...). The name is read at each call; the locale must outlive the tag.
class to_upper_locale {
public:
    explicit to_upper_locale(OvLocale const& locale) : locale_(locale) {}
    OvLocale const& locale() const noexcept { return locale_; }

private:
    OvLocale const& locale_;
};

class to_lower_locale {
public:
    explicit to_lower_locale(OvLocale const& locale) : locale_(locale) {}
    OvLocale const& locale() const noexcept { return locale_; }

private:
    OvLocale const& locale_;
};

namespace lcctype {

// Writes the transformed source to destination and returns the length of the whole result in
// UTF-16 units. A null or too short destination only measures (no failure), so callers call
// twice to allocate exactly; a result that fills destination exactly gets no terminator.
// A null or empty source gives 0 and stores nothing. A source, non-null destination or result
// above 0x3FFFFFFF units throws CtypeSizeTooLarge; other ICU failures CtypeTransformFailure.
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_upper tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_lower tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size,
                                  to_upper_locale const& tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size,
                                  to_lower_locale const& tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_nfc tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_nfd tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_nfkc tag);
FL_I18N_API std::size_t transform(char16_t* destination, std::size_t destination_size,
                                  char16_t const* source, std::size_t source_size, to_nfkd tag);

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
