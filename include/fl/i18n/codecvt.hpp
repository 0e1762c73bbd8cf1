#ifndef FL_I18N_CODECVT_HPP
#define FL_I18N_CODECVT_HPP

#endif
