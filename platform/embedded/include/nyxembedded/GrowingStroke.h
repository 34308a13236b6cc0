#pragma once

#include "nyxembedded/BrushSettings.h"
#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"
#include "nyxrender/Export.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace nyx::embedded {

/// A stroke that is seen while the pen moves: points come in portions, and each costs what its own
/// dabs cost, however long the stroke is by then. In the end the layer is what paintBrushStroke()
/// makes of all points at once. Any thread, one at a time.
class NYXRENDER_EXPORT GrowingStroke {
public:
    enum class Ink {
        Paint,
        Erase ///< takes paint away where the brush would paint, by as much
    };

    /// Paints over a snapshot of a layer.
    GrowingStroke(LayerPixels before, BrushSettings brush, Ink ink = Ink::Paint,
                  float texelsPerUnit = 1, std::uint32_t seed = 1);
    ~GrowingStroke();
    GrowingStroke(GrowingStroke const&) = delete;
    GrowingStroke& operator=(GrowingStroke const&) = delete;

    void add(std::vector<BrushStroke::Point> const& points);
    /// No more points come: where the pen stopped, a brush that turns with the line prints its
    /// last dab.
    void end();

    [[nodiscard]] LayerPixels const& before() const;
    /// The layer with the stroke so far. Tiles that it has not touched are those of before().
    [[nodiscard]] LayerPixels const& pixels() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
