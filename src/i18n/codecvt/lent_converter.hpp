#ifndef FL_I18N_CODECVT_LENT_CONVERTER_HPP
#define FL_I18N_CODECVT_LENT_CONVERTER_HPP

#include "common/unique_converter.hpp"

#include <unicode/ucnv.h>

#include <string>

namespace fl {
namespace i18n {
namespace detail {

// Lends the calling thread's own converter on a named encoding for the life of the object, in
// ICU's default call-backs, and resets it when the object goes, on every way out. Each thread
// keeps one such converter, for the last name asked; another name replaces it. A nested loan
// on the same thread, or one while the thread is exiting, gets a converter of its own. An
// unknown name raises CvtInvalidEncodingName.
class lent_converter {
public:
    explicit lent_converter(std::string const& encoding);
    lent_converter(lent_converter const&) = delete;
    lent_converter& operator=(lent_converter const&) = delete;
    ~lent_converter();

    UConverter* get() const noexcept { return converter_; }

private:
    UConverter* converter_ = nullptr;
    unique_converter own_;  // set when the thread's converter could not be lent
};

// ucnv_open that raises CvtInvalidEncodingName with the name on failure.
unique_converter open_converter(std::string const& encoding);

}  // namespace detail
}  // namespace i18n
}  // namespace fl

#endif
