#pragma once

#include <cstdlib>

/// Ends the program when a promise is broken.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}
