#ifndef FL_I18N_CODECVT_CODECVT_ASCII_HPP
#define FL_I18N_CODECVT_CODECVT_ASCII_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {

// Seven-bit ASCII without ICU. Strict (lenient false) converters throw CvtInvalidCharacter at a
// character above 0x7F. Unlike other converters, the buffer forms return the number of
// characters stored, min(capacity, size), not the length needed.

// A bad byte becomes U+FFFD when lenient. The buffer form works from the last character to the
// first, so widening in place over the converter's own buffer is safe; when it throws, the
// characters behind the bad one are already stored.
class FL_I18N_API codecvt_ascii_to_ustring : public converter<char16_t, char> {
public:
    explicit codecvt_ascii_to_ustring(bool lenient = false) : lenient_(lenient) {}
    ~codecvt_ascii_to_ustring() override;

    std::size_t do_get_destination_size(char const* source, std::size_t source_size) const override;
    std::basic_string<char16_t> do_convert(char const* source,
                                           std::size_t source_size) const override;
    std::size_t do_convert(char16_t* destination, std::size_t destination_size, char const* source,
                           std::size_t source_size) const override;

private:
    bool lenient_;
};

// A bad unit becomes the byte 0xFF when lenient: no ASCII character, so it cannot pass for
// text.
class FL_I18N_API codecvt_ustring_to_ascii : public converter<char, char16_t> {
public:
    explicit codecvt_ustring_to_ascii(bool lenient = false) : lenient_(lenient) {}
    ~codecvt_ustring_to_ascii() override;

    std::size_t do_get_destination_size(char16_t const* source,
                                        std::size_t source_size) const override;
    std::string do_convert(char16_t const* source, std::size_t source_size) const override;
    std::size_t do_convert(char* destination, std::size_t destination_size, char16_t const* source,
                           std::size_t source_size) const override;

private:
    bool lenient_;
};

}  // namespace i18n
}  // namespace fl

#endif
