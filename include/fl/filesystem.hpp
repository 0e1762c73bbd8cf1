#ifndef FL_FILESYSTEM_HPP
#define FL_FILESYSTEM_HPP

#include <fl/i18n/ustring.hpp>

#endif
