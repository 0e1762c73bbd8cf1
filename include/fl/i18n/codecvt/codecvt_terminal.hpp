#ifndef FL_I18N_CODECVT_CODECVT_TERMINAL_HPP
#define FL_I18N_CODECVT_CODECVT_TERMINAL_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/export.hpp>

#include <memory>

namespace fl {
namespace i18n {

// Converters on the global locale's terminal encoding, which may differ from the default
// encoding. Each call builds a new lenient converter: unmappable text is substituted, never
// refused. A bad terminal encoding name throws CvtInvalidEncodingName.
FL_I18N_API std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_to_ustring();
FL_I18N_API std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal();
FL_I18N_API std::unique_ptr<converter<char16_t, char>> create_codecvt_terminal_input_to_ustring();
FL_I18N_API std::unique_ptr<converter<char, char16_t>> create_codecvt_ustring_to_terminal_output();

}  // namespace i18n
}  // namespace fl

#endif
