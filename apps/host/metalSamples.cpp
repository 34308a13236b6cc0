#include "host/metalSamples.h"

#include <algorithm>

namespace app {

double MetalSample::reflectance() const {
    return ((n - 1) * (n - 1) + k * k) / ((n + 1) * (n + 1) + k * k);
}

std::vector<MetalSample> metalSamples(zsg::FloatArray const& triples) {
    std::vector<MetalSample> list;
    for (qsizetype i = 0; i + 2 < triples.size(); i += 3) {
        list.push_back({static_cast<double>(triples[i]), static_cast<double>(triples[i + 1]),
                        static_cast<double>(triples[i + 2])});
    }
    std::ranges::stable_sort(list, {}, &MetalSample::wavelength);
    return list;
}

} // namespace app
