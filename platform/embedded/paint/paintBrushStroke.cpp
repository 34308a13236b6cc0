#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"
#include "paint/StrokeCoverage.h"

namespace nyx::embedded {

std::size_t paintBrushStroke(LayerPixels& pixels, BrushSettings const& brush,
                             BrushStroke const& stroke) {
    std::vector<Dab> const dabs = strokeDabs(brush, stroke);
    DabMasks masks(brush);
    StrokeCoverage coverage(pixels.resolution());
    auto const reach = static_cast<float>(pixels.resolution());
    for (Dab const& dab : dabs) {
        // Far outside no mask is needed; a shape's corners reach out by less than its diameter.
        if (dab.x + dab.diameter + 1 > 0 && dab.x - dab.diameter - 1 < reach &&
            dab.y + dab.diameter + 1 > 0 && dab.y - dab.diameter - 1 < reach) {
            coverage.add(masks.mask(dab), dab);
        }
    }
    coverage.paintOn(pixels, brush);
    return dabs.size();
}

} // namespace nyx::embedded
