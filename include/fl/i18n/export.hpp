#ifndef FL_I18N_EXPORT_HPP
#define FL_I18N_EXPORT_HPP

// The library is built with hidden visibility; only what carries this mark is its interface.
#define FL_I18N_API __attribute__((visibility("default")))

#endif
