#ifndef FL_I18N_CODECVT_CODECVT_CALL_BACK_MODE_HPP
#define FL_I18N_CODECVT_CODECVT_CALL_BACK_MODE_HPP

#include <cstdint>

namespace fl {
namespace i18n {

// How a converter treats what it cannot convert. The escape values are a family: any value
// with a bit inside call_back_escape_mask escapes.
enum codecvt_call_back_mode : std::uint32_t {
    call_back_default = 0,
    call_back_stop = 0x1,
    call_back_substitute = 0x10,
    call_back_reserved = 0x20,
    call_back_escape_icu = 0x100,
    call_back_escape_java = 0x200,
    call_back_escape_c = 0x400,
    call_back_escape_xml_dec = 0x800,
    call_back_escape_xml_hex = 0x1000,
    call_back_escape_unicode = 0x2000,
    call_back_escape_css2 = 0x4000,
    call_back_escape_mask = 0x7F00,
};

}  // namespace i18n
}  // namespace fl

#endif
