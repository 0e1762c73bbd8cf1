#ifndef FL_FILESYSTEM_FILENAME_CONVERTER_HPP
#define FL_FILESYSTEM_FILENAME_CONVERTER_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace fl {
namespace i18n {
namespace detail {
class codecvt_context;
}  // namespace detail
}  // namespace i18n

namespace filesystem {

// File name conversion as converter objects, each with a private copy of the default converter.
// A lenient object substitutes what can't be converted (the encoding's substitution character
// one way, U+FFFD the other); a strict one throws CvtInvalidCharacter, or
// FileNameConversionFailure for a sequence cut off at its end. Failures are those of the
// filesystem family. One object serves one thread at a time.
//
// The narrow-string pair is the same conversion as the file system pair; the names only say
// what the caller means by the bytes.

class FL_I18N_API codecvt_ustring_to_filesystem : public fl::i18n::converter<char, char16_t> {
public:
    explicit codecvt_ustring_to_filesystem(bool lenient);
    ~codecvt_ustring_to_filesystem() override;
    codecvt_ustring_to_filesystem(codecvt_ustring_to_filesystem const&) = delete;
    codecvt_ustring_to_filesystem& operator=(codecvt_ustring_to_filesystem const&) = delete;

    std::size_t do_get_destination_size(char16_t const* source, std::size_t length) const override;
    std::string do_convert(char16_t const* source, std::size_t length) const override;
    std::size_t do_convert(char* destination, std::size_t capacity, char16_t const* source,
                           std::size_t length) const override;

private:
    std::unique_ptr<fl::i18n::detail::codecvt_context> context_;
};

class FL_I18N_API codecvt_filesystem_to_ustring : public fl::i18n::converter<char16_t, char> {
public:
    explicit codecvt_filesystem_to_ustring(bool lenient);
    ~codecvt_filesystem_to_ustring() override;
    codecvt_filesystem_to_ustring(codecvt_filesystem_to_ustring const&) = delete;
    codecvt_filesystem_to_ustring& operator=(codecvt_filesystem_to_ustring const&) = delete;

    std::size_t do_get_destination_size(char const* source, std::size_t length) const override;
    std::u16string do_convert(char const* source, std::size_t length) const override;
    std::size_t do_convert(char16_t* destination, std::size_t capacity, char const* source,
                           std::size_t length) const override;

private:
    std::unique_ptr<fl::i18n::detail::codecvt_context> context_;
};

class FL_I18N_API codecvt_ustring_to_narrow_string : public fl::i18n::converter<char, char16_t> {
public:
    explicit codecvt_ustring_to_narrow_string(bool lenient);
    ~codecvt_ustring_to_narrow_string() override;
    codecvt_ustring_to_narrow_string(codecvt_ustring_to_narrow_string const&) = delete;
    codecvt_ustring_to_narrow_string& operator=(codecvt_ustring_to_narrow_string const&) = delete;

    std::size_t do_get_destination_size(char16_t const* source, std::size_t length) const override;
    std::string do_convert(char16_t const* source, std::size_t length) const override;
    std::size_t do_convert(char* destination, std::size_t capacity, char16_t const* source,
                           std::size_t length) const override;

private:
    std::unique_ptr<fl::i18n::detail::codecvt_context> context_;
};

class FL_I18N_API codecvt_narrow_string_to_ustring : public fl::i18n::converter<char16_t, char> {
public:
    explicit codecvt_narrow_string_to_ustring(bool lenient);
    ~codecvt_narrow_string_to_ustring() override;
    codecvt_narrow_string_to_ustring(codecvt_narrow_string_to_ustring const&) = delete;
    codecvt_narrow_string_to_ustring& operator=(codecvt_narrow_string_to_ustring const&) = delete;

    std::size_t do_get_destination_size(char const* source, std::size_t length) const override;
    std::u16string do_convert(char const* source, std::size_t length) const override;
    std::size_t do_convert(char16_t* destination, std::size_t capacity, char const* source,
                           std::size_t length) const override;

private:
    std::unique_ptr<fl::i18n::detail::codecvt_context> context_;
};

}  // namespace filesystem
}  // namespace fl

#endif
