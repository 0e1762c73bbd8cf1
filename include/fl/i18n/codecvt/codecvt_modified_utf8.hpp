#ifndef FL_I18N_CODECVT_CODECVT_MODIFIED_UTF8_HPP
#define FL_I18N_CODECVT_CODECVT_MODIFIED_UTF8_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {

// The modified UTF-8 of Java's native interface: U+0000 is 0xC0 0x80, and each surrogate of a
// supplementary character is encoded by itself in three bytes. Sizes above 0x7FFFFFFF throw
// CvtSizeTooLarge.

// Illegal bytes become U+FFFD; nothing is reported.
class FL_I18N_API codecvt_modified_utf8_to_ustring : public converter<char16_t, char> {
public:
    codecvt_modified_utf8_to_ustring() {}
    ~codecvt_modified_utf8_to_ustring() override;

    std::size_t do_get_destination_size(char const* source, std::size_t source_size) const override;
    std::basic_string<char16_t> do_convert(char const* source,
                                           std::size_t source_size) const override;
    std::size_t do_convert(char16_t* destination, std::size_t destination_size, char const* source,
                           std::size_t source_size) const override;
};

class FL_I18N_API codecvt_ustring_to_modified_utf8 : public converter<char, char16_t> {
public:
    codecvt_ustring_to_modified_utf8() {}
    ~codecvt_ustring_to_modified_utf8() override;

    std::size_t do_get_destination_size(char16_t const* source,
                                        std::size_t source_size) const override;
    std::string do_convert(char16_t const* source, std::size_t source_size) const override;
    std::size_t do_convert(char* destination, std::size_t destination_size, char16_t const* source,
                           std::size_t source_size) const override;
};

}  // namespace i18n
}  // namespace fl

#endif
