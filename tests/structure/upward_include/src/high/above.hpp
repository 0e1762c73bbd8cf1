#include "low/below_too.hpp"
