#include "paint/StrokeCoverage.h"

#include "nyxembedded/GrowingStroke.h"

#include <cstddef>
#include <utility>

namespace nyx::embedded {

namespace {

/// Covers what the dabs cover.
void addDabs(StrokeCoverage& coverage, DabMasks& masks, std::vector<Dab> const& dabs,
             int resolution) {
    auto const reach = static_cast<float>(resolution);
    for (Dab const& dab : dabs) {
        // Far outside no mask is needed; a shape's corners reach out by less than its diameter.
        if (dab.x + dab.diameter + 1 > 0 && dab.x - dab.diameter - 1 < reach &&
            dab.y + dab.diameter + 1 > 0 && dab.y - dab.diameter - 1 < reach) {
            coverage.add(masks.mask(dab), dab);
        }
    }
}

} // namespace

std::size_t paintBrushStroke(LayerPixels& pixels, BrushSettings const& brush,
                             BrushStroke const& stroke) {
    std::vector<Dab> const dabs = strokeDabs(brush, stroke);
    DabMasks masks(brush);
    StrokeCoverage coverage(pixels.resolution());
    addDabs(coverage, masks, dabs, pixels.resolution());
    coverage.paintOn(pixels, LayerPixels(pixels), brush, StrokeCoverage::Ink::Paint);
    return dabs.size();
}

class GrowingStroke::Impl {
public:
    Impl(LayerPixels before, BrushSettings brush, Ink ink, float texelsPerUnit, std::uint32_t seed)
        : brush_(std::move(brush)),
          ink_(ink == Ink::Erase ? StrokeCoverage::Ink::Erase : StrokeCoverage::Ink::Paint),
          before_(std::move(before)),
          pixels_(before_),
          dabs_(brush_, texelsPerUnit, seed),
          masks_(brush_),
          coverage_(before_.resolution()) {}

    void add(std::vector<BrushStroke::Point> const& points) {
        for (BrushStroke::Point const& point : points) {
            dabs_.add(point);
        }
        paint();
    }
    void end() {
        dabs_.end();
        paint();
    }
    [[nodiscard]] LayerPixels const& before() const { return before_; }
    [[nodiscard]] LayerPixels const& pixels() const { return pixels_; }

private:
    void paint() {
        addDabs(coverage_, masks_, dabs_.take(), before_.resolution());
        coverage_.paintOn(pixels_, before_, brush_, ink_);
    }

    BrushSettings brush_;
    StrokeCoverage::Ink ink_;
    LayerPixels before_;
    LayerPixels pixels_;
    StrokeDabs dabs_;
    DabMasks masks_;
    StrokeCoverage coverage_;
};

GrowingStroke::GrowingStroke(LayerPixels before, BrushSettings brush, Ink ink, float texelsPerUnit,
                             std::uint32_t seed)
    : impl_(std::make_unique<Impl>(std::move(before), std::move(brush), ink, texelsPerUnit, seed)) {
}

GrowingStroke::~GrowingStroke() = default;

void GrowingStroke::add(std::vector<BrushStroke::Point> const& points) { impl_->add(points); }

void GrowingStroke::end() { impl_->end(); }

LayerPixels const& GrowingStroke::before() const { return impl_->before(); }

LayerPixels const& GrowingStroke::pixels() const { return impl_->pixels(); }

} // namespace nyx::embedded
