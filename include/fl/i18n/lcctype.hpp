#ifndef FL_I18N_LCCTYPE_HPP
#define FL_I18N_LCCTYPE_HPP

#include <fl/i18n/lcctype/ascii_class.hpp>
#include <fl/i18n/lcctype/character_handling_mode_context.hpp>
#include <fl/i18n/lcctype/classify.hpp>
#include <fl/i18n/lcctype/code_point.hpp>
#include <fl/i18n/lcctype/ctype_exception.hpp>
#include <fl/i18n/lcctype/pattern_match.hpp>
#include <fl/i18n/lcctype/posix_class.hpp>
#include <fl/i18n/lcctype/posix_tag.hpp>
#include <fl/i18n/lcctype/regex_exception.hpp>
#include <fl/i18n/lcctype/scan.hpp>
#include <fl/i18n/lcctype/string_compare.hpp>
#include <fl/i18n/lcctype/string_transform.hpp>
#include <fl/i18n/lcctype/trim.hpp>

#endif
