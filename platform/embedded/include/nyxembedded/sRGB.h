#pragma once

#include "nyxrender/Export.h"

#include <cstdint>

namespace nyx::embedded {

// Records hold linear light with the primaries of sRGB. What people read ("#rrggbb") and what an
// image of eight bits holds is encoded with the curve of IEC 61966-2-1. Alpha has no curve.

/// One component, encoded: 0 to 1; what lies outside is cut off, NaN gives 0.
[[nodiscard]] NYXRENDER_EXPORT float encodedFromLinear(float linear);
/// The inverse; cut off likewise.
[[nodiscard]] NYXRENDER_EXPORT float linearFromEncoded(float encoded);

/// One component as the byte of an image, to the nearest.
[[nodiscard]] NYXRENDER_EXPORT std::uint8_t sRGBFromLinear(float linear);
/// The inverse: sRGBFromLinear() gives the same byte back.
[[nodiscard]] NYXRENDER_EXPORT float linearFromSRGB(std::uint8_t byte);

} // namespace nyx::embedded
