#pragma once

#include "zsg/values/FloatArray.h"

#include <vector>

namespace app {

/// One line of a measured index of refraction.
struct MetalSample {
    double wavelength = 0; ///< nanometres
    double n = 0;
    double k = 0;

    /// The part of the light that a surface in air reflects when it falls on it straight.
    [[nodiscard]] double reflectance() const;
};

/// What zsg::loadIORFile reads, by wavelength.
[[nodiscard]] std::vector<MetalSample> metalSamples(zsg::FloatArray const& triples);

} // namespace app
