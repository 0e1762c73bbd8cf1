#ifndef FL_I18N_CODECVT_HPP
#define FL_I18N_CODECVT_HPP

#include <fl/i18n/codecvt/codecvt_call_back_mode.hpp>
#include <fl/i18n/codecvt/codecvt_exception.hpp>
#include <fl/i18n/codecvt/codecvt_string_to_ustring.hpp>
#include <fl/i18n/codecvt/codecvt_ustring_to_string.hpp>
#include <fl/i18n/codecvt/converter.hpp>

#endif
