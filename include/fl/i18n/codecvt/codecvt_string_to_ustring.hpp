#ifndef FL_I18N_CODECVT_CODECVT_STRING_TO_USTRING_HPP
#define FL_I18N_CODECVT_CODECVT_STRING_TO_USTRING_HPP

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

// Bytes in any encoding ICU knows to UTF-16. An empty encoding name means the global locale's
// encoding at construction. Only call_back_default and call_back_stop exist in this direction.
class FL_I18N_API codecvt_string_to_ustring : public converter<char16_t, char> {
public:
    // lenient false stops at the first illegal sequence; true replaces it with U+FFFD.
    codecvt_string_to_ustring(std::string const& encoding, bool lenient);
    codecvt_string_to_ustring(codecvt_call_back_mode mode, std::string const& encoding);
    codecvt_string_to_ustring(codecvt_string_to_ustring const&) = delete;
    codecvt_string_to_ustring& operator=(codecvt_string_to_ustring const&) = delete;
    ~codecvt_string_to_ustring() override;

    void change_call_back(codecvt_call_back_mode mode);
    void reset_call_back();
    codecvt_call_back_mode get_call_back_mode() const;

    std::size_t do_get_destination_size(char const* source, std::size_t source_size) const override;
    std::basic_string<char16_t> do_convert(char const* source,
                                           std::size_t source_size) const override;
    std::size_t do_convert(char16_t* destination, std::size_t destination_size, char const* source,
                           std::size_t source_size) const override;

private:
    std::unique_ptr<detail::codecvt_context> context_;
};

}  // namespace i18n
}  // namespace fl

#endif
