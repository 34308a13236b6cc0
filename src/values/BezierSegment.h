#pragma once

#include "nyxrender/nyxVector.h"

namespace zsg {

/// A cubic Bezier curve from `start` to `end`, drawn towards `out` and coming from `in`.
struct BezierSegment {
    nyxVector2f start;
    nyxVector2f out;
    nyxVector2f in;
    nyxVector2f end;

    /// The t in [0, 1] at which the curve's x is `x`, to 1e-12 of the segment's width; one of them
    /// where x is not monotone. 0 or 1 for an `x` outside of the segment, and some t in [0, 1] when
    /// numbers are not finite.
    [[nodiscard]] double parameterAt(double x) const noexcept;
};

/// The control points between start and end of the two halves of a segment.
struct BezierSplit {
    nyxVector2f startOut;
    nyxVector2f in;
    nyxVector2f pos;
    nyxVector2f out;
    nyxVector2f endIn;
};

/// Splits at `t` by de Casteljau's construction: the halves draw the same curve.
[[nodiscard]] BezierSplit split(BezierSegment const& segment, double t) noexcept;

} // namespace zsg
