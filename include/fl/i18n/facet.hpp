#ifndef FL_I18N_FACET_HPP
#define FL_I18N_FACET_HPP

#endif
