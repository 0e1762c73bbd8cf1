#include "usage_error.hpp"

#include <iostream>

namespace ovi18n_tool {

int usage_error(std::string const& what) {
    std::cerr << "ovi18n: " << what << " (try 'ovi18n --help')\n";
    return 2;
}

}  // namespace ovi18n_tool
