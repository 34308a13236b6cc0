#pragma once

#include "nyxembedded/PixelTile.h"
#include "nyxrender/nyxLayerInfo.h"

namespace nyx::embedded {

/// Lays a tile over a backdrop and leaves the result in the backdrop.
///
/// With premultiplied colours S and D of source and backdrop, their alphas a and b, and the blend
/// function B of the mode, the result is S (1 - b) + D (1 - a) + a b B(D / b, S / a), and its alpha
/// is a + b - a b: the W3C's formulas for source-over. They are applied to the stored numbers as
/// they are, without making light of them first (not linear), as browsers and image editors do.
/// Each number is rounded once, to the nearest; those of ColorDodge, ColorBurn and SoftLight may be
/// off by one where the exact one lies half-way. A mode that is none of the enumeration counts as
/// Normal.
void blendTile(PixelTile& backdrop, PixelTile const& source, nyx::ColorBlendMode mode);

} // namespace nyx::embedded
