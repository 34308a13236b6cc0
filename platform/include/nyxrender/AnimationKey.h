#pragma once

#include "nyxrender/nyxVector.h"

#include <cstdint>

namespace nyx {

/// How a curve runs from a key to the next one. The letters are those of the exchange format.
enum class KeyType : std::int32_t {
    U = 0,
    T = 1,
    s = 2,
    S = 3,
    L = 4, ///< a straight line
};

/// One key of an animation curve; the two handles are points in absolute coordinates.
struct AnimationKey {
    nyxVector2f pos;
    nyxVector2f in;
    nyxVector2f out;
    KeyType type = KeyType::U;

    friend bool operator==(AnimationKey const&, AnimationKey const&) = default;
};

} // namespace nyx
