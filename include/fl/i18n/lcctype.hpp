#ifndef FL_I18N_LCCTYPE_HPP
#define FL_I18N_LCCTYPE_HPP

#endif
