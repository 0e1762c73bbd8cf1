#ifndef FL_I18N_CODECVT_CODECVT_USTRING_TO_STRING_HPP
#define FL_I18N_CODECVT_CODECVT_USTRING_TO_STRING_HPP

#include <fl/i18n/codecvt/codecvt_call_back_mode.hpp>
#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

#include <memory>
#include <string>

namespace fl {
namespace i18n {
namespace detail {
class codecvt_context;
}

// UTF-16 to bytes in any encoding ICU knows. An empty encoding name means the global locale's
// encoding at construction.
class FL_I18N_API codecvt_ustring_to_string : public converter<char, char16_t> {
public:
    // lenient false stops at the first unmappable character; true writes the encoding's
    // substitution character instead.
    codecvt_ustring_to_string(std::string const& encoding, bool lenient);
    // substitution is used by call_back_substitute only: at most 127 bytes.
    codecvt_ustring_to_string(codecvt_call_back_mode mode, std::string const& encoding,
                              std::string const& substitution = std::string());
    codecvt_ustring_to_string(codecvt_ustring_to_string const&) = delete;
    codecvt_ustring_to_string& operator=(codecvt_ustring_to_string const&) = delete;
    ~codecvt_ustring_to_string() override;

    // call_back_substitute installs the substitution bytes but leaves the reported mode at
    // call_back_default, and reset_call_back() does not take the bytes back.
    void change_call_back(codecvt_call_back_mode mode,
                          std::string const& substitution = std::string());
    void reset_call_back();
    codecvt_call_back_mode get_call_back_mode() const;

    std::size_t do_get_destination_size(char16_t const* source,
                                        std::size_t source_size) const override;
    std::string do_convert(char16_t const* source, std::size_t source_size) const override;
    std::size_t do_convert(char* destination, std::size_t destination_size, char16_t const* source,
                           std::size_t source_size) const override;

private:
    std::unique_ptr<detail::codecvt_context> context_;
};

}  // namespace i18n
}  // namespace fl

#endif
