#ifndef FL_I18N_CODECVT_CODECVT_WIDE_HPP
#define FL_I18N_CODECVT_CODECVT_WIDE_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {

// wchar_t is UTF-32 here. These converters never fail and never touch ICU.

// Values below 0x10000 pass unchanged, lone surrogates included; others become a pair, with no
// check against 0x10FFFF. When a pair finds room for its high unit only, that unit is stored
// but not counted, so the returned length stays the length needed.
class FL_I18N_API codecvt_wstring_to_ustring : public converter<char16_t, wchar_t> {
public:
    codecvt_wstring_to_ustring() {}
    ~codecvt_wstring_to_ustring() override;

    std::size_t do_get_destination_size(wchar_t const* source,
                                        std::size_t source_size) const override;
    std::basic_string<char16_t> do_convert(wchar_t const* source,
                                           std::size_t source_size) const override;
    std::size_t do_convert(char16_t* destination, std::size_t destination_size,
                           wchar_t const* source, std::size_t source_size) const override;
};

// A lone surrogate becomes U+FFFD.
class FL_I18N_API codecvt_ustring_to_wstring : public converter<wchar_t, char16_t> {
public:
    codecvt_ustring_to_wstring() {}
    ~codecvt_ustring_to_wstring() override;

    std::size_t do_get_destination_size(char16_t const* source,
                                        std::size_t source_size) const override;
    std::wstring do_convert(char16_t const* source, std::size_t source_size) const override;
    std::size_t do_convert(wchar_t* destination, std::size_t destination_size,
                           char16_t const* source, std::size_t source_size) const override;
};

}  // namespace i18n
}  // namespace fl

#endif
