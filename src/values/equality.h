#pragma once

#include "zsg/values/Enumerable.h"
#include "zsg/values/FloatArray.h"
#include "zsg/values/WeavePattern.h"

#include "nyxrender/nyxMatrix.h"

#include <algorithm>

namespace zsg {

/// The rules behind equals(), in a form that holders can inline: one overload for each type whose
/// own == is missing or means something else.
template <class T>
[[nodiscard]] bool isSame(T const& a, T const& b) {
    return a == b;
}

/// Unequal is only what is less or greater, as the renderer compares its matrices: so a NaN equals
/// anything at its place.
[[nodiscard]] inline bool isSame(nyxMatrix const& a, nyxMatrix const& b) {
    bool differ = false;
    for (int i = 0; i < 16; ++i) {
        differ |= (a.m[i] < b.m[i]) | (a.m[i] > b.m[i]);
    }
    return !differ;
}

/// Number by number, because the list itself compares bytes: 0.0 equals -0.0, NaN equals nothing.
[[nodiscard]] inline bool isSame(FloatArray const& a, FloatArray const& b) {
    if (a.size() != b.size()) {
        return false;
    }
    float const* left = a.constData();
    float const* right = b.constData();
    if (left == right) {
        return true;
    }
    // Whole blocks without a branch inside, which compilers turn into vector instructions.
    constexpr qsizetype blockSize = 64;
    for (qsizetype i = 0, rest = a.size(); rest > 0; i += blockSize, rest -= blockSize) {
        unsigned differ = 0;
        qsizetype const end = i + std::min(blockSize, rest);
        for (qsizetype j = i; j < end; ++j) {
            differ |= static_cast<unsigned>(left[j] != right[j]);
        }
        if (differ != 0) {
            return false;
        }
    }
    return true;
}

/// The options only: which one is selected does not count.
[[nodiscard]] inline bool isSame(Enumerable const& a, Enumerable const& b) {
    using Options = QList<std::pair<int, QString>>;
    return static_cast<Options const&>(a) == static_cast<Options const&>(b);
}

[[nodiscard]] inline bool isSame(WeavePattern const& a, WeavePattern const& b) {
    return a.equals(b);
}

} // namespace zsg
