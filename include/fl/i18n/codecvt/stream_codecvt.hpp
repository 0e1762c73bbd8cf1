#ifndef FL_I18N_CODECVT_STREAM_CODECVT_HPP
#define FL_I18N_CODECVT_STREAM_CODECVT_HPP

#include <fl/i18n/codecvt/stream_converter.hpp>
#include <fl/i18n/export.hpp>

#include <memory>
#include <string>

namespace fl {
namespace i18n {
namespace detail {
class codecvt_context;
}

// ICU-backed stream converters. An empty encoding name means the global locale's encoding at
// construction; an unknown one throws CvtInvalidEncodingName. lenient false stops at the first
// bad character with an exception, after which the object is reset and ready for a new text.
// The spans given to do_convert must stay within ICU's 32-bit limits.

class FL_I18N_API stream_codecvt_ustring_to_string : public stream_converter<char, char16_t> {
public:
    stream_codecvt_ustring_to_string(std::string const& encoding, bool lenient);
    stream_codecvt_ustring_to_string(stream_codecvt_ustring_to_string const&) = delete;
    stream_codecvt_ustring_to_string& operator=(stream_codecvt_ustring_to_string const&) = delete;
    ~stream_codecvt_ustring_to_string() override;

    bool do_convert(char** to, char* to_end, char16_t const** from, char16_t const* from_end,
                    bool flush) const override;
    void do_reset_state() const override;
    // 4 for UTF-8 under any of its names, whatever ICU says.
    int do_max_char_size() const override;

private:
    std::unique_ptr<detail::codecvt_context> context_;
};

class FL_I18N_API stream_codecvt_string_to_ustring : public stream_converter<char16_t, char> {
public:
    stream_codecvt_string_to_ustring(std::string const& encoding, bool lenient);
    stream_codecvt_string_to_ustring(stream_codecvt_string_to_ustring const&) = delete;
    stream_codecvt_string_to_ustring& operator=(stream_codecvt_string_to_ustring const&) = delete;
    ~stream_codecvt_string_to_ustring() override;

    bool do_convert(char16_t** to, char16_t* to_end, char const** from, char const* from_end,
                    bool flush) const override;
    void do_reset_state() const override;
    // Always 2: a surrogate pair.
    int do_max_char_size() const override;

private:
    std::unique_ptr<detail::codecvt_context> context_;
};

}  // namespace i18n
}  // namespace fl

#endif
