// What a fuzz target must find true.
#pragma once

#include <cstdlib>

inline void Check(bool holds) {
    if (!holds) std::abort();
}
