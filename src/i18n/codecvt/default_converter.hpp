#ifndef FL_I18N_CODECVT_DEFAULT_CONVERTER_HPP
#define FL_I18N_CODECVT_DEFAULT_CONVERTER_HPP

#include "common/unique_converter.hpp"
#include "i18n/codecvt/conversion_core.hpp"

#include <unicode/ucnv.h>

namespace fl {
namespace i18n {
namespace detail {

// The encoding of the global locale, fixed at the first call in the process. Borrowed; null
// when ICU could not open that encoding.
UConverter* default_converter_master();

// Whether ASCII may bypass ICU in the default encoding (is_ascii_transparent), decided once
// with the master.
bool default_encoding_is_ascii_transparent();

// A private converter on the default encoding for one object. Throws CvtConversionFailure
// when none can be had. ascii_transparent, when given, receives what is known of it: the
// master's answer for a clone, is_ascii_transparent asked anew for the encoding opened when the
// master can't be cloned.
unique_converter clone_default_converter(bool* ascii_transparent = nullptr);

// Lends the calling thread's own converter on the default encoding for the life of the object
// and resets it when the object goes, on every way out, so the next user finds it fresh. The
// copy is made at a thread's first loan and closed when the thread ends. A nested loan on the
// same thread, or one while the thread is exiting, gets a private clone instead. There is no
// lock: no two threads ever share a converter.
class lent_default_converter {
public:
    lent_default_converter();
    lent_default_converter(lent_default_converter const&) = delete;
    lent_default_converter& operator=(lent_default_converter const&) = delete;
    ~lent_default_converter();

    UConverter* get() const noexcept { return use_.converter; }
    converter_use use() const noexcept { return use_; }

private:
    converter_use use_;
    unique_converter clone_;  // set when the thread's own copy could not be lent
};

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
