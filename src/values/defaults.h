#pragma once

#include "nyxrender/nyxMatrix.h"
#include "zcore/ZColorExt.h"
#include "zcore/ZColorExtAlpha.h"

#include <type_traits>

namespace zsg {

template <class T>
[[nodiscard]] constexpr T makeDefault() {
    if constexpr (std::is_same_v<T, nyxMatrix>) {
        return {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    } else if constexpr (std::is_same_v<T, ZColorExt> || std::is_same_v<T, ZColorExtAlpha>) {
        // One element, unlike the value of the default constructor.
        return T(0.0f, 0.0f, 0.0f, 1.0f);
    } else {
        return T{};
    }
}

/// The value that a new holder of T begins with. One for all holders: those types that share their
/// data copy without allocating, the plain ones copy from a constant.
template <class T>
[[nodiscard]] T const& defaultValue() {
    static T const value = makeDefault<T>();
    return value;
}

} // namespace zsg
