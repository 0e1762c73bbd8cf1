#ifndef FL_I18N_TIME_HPP
#define FL_I18N_TIME_HPP

#endif
