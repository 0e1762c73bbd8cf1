#include "high/above.hpp"
