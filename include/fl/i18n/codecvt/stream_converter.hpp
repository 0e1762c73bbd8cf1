#ifndef FL_I18N_CODECVT_STREAM_CONVERTER_HPP
#define FL_I18N_CODECVT_STREAM_CONVERTER_HPP

#include <fl/i18n/export.hpp>

namespace fl {
namespace i18n {

// Conversion of text that arrives piece by piece: a character cut at the end of one piece is
// completed by the next. One object holds the state of one stream, for one thread at a time.
template <class To, class From>
class stream_converter {
public:
    virtual ~stream_converter();

    // Converts as much as fits and moves both cursors. Returns true when the target filled up
    // (call again with more room), false when the source was consumed. With flush true a
    // sequence left incomplete at the end is an error.
    virtual bool do_convert(To** to, To* to_end, From const** from, From const* from_end,
                            bool flush) const = 0;
    // Forgets a pending partial character, to start a new text after an abandoned one.
    virtual void do_reset_state() const = 0;
    // The most To units that one character can take.
    virtual int do_max_char_size() const = 0;
};

extern template class FL_I18N_API stream_converter<char, char16_t>;
extern template class FL_I18N_API stream_converter<char16_t, char>;

}  // namespace i18n
}  // namespace fl

#endif
