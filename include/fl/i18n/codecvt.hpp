#ifndef FL_I18N_CODECVT_HPP
#define FL_I18N_CODECVT_HPP

#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/codecvt/codecvt_call_back_mode.hpp>
#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_modified_utf8.hpp>
#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_terminal.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/codecvt/codecvt_wide.hpp>
#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/codecvt/standard_encoding_name.hpp>
#include <fl/i18n/codecvt/stream_codecvt.hpp>
#include <fl/i18n/codecvt/stream_converter.hpp>
#include <fl/i18n/codecvt/string_conversion.hpp>

#endif
