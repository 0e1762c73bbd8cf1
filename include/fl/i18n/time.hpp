#ifndef FL_I18N_TIME_HPP
#define FL_I18N_TIME_HPP

#include <fl/i18n/time/date_time_exception.hpp>
#include <fl/i18n/time/environment.hpp>
#include <fl/i18n/time/module_path.hpp>
#include <fl/i18n/time/ptime_to_time_t.hpp>
#include <fl/i18n/time/timezone.hpp>
#include <fl/i18n/time/timezone_exception.hpp>

#endif
