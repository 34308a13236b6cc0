#include "host/pictures/BrushSheet.h"

#include "host/printable.h"

#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace app {

namespace {

constexpr int columns = 2;
constexpr int cellWidth = 320;
constexpr int cellHeight = 140;
constexpr double margin = 16;
constexpr double label = 32;        ///< what a name takes
constexpr float texelsPerUnit = 40; ///< for brushes that are measured in scene units

nyx::embedded::BrushStroke wave() {
    constexpr int steps = 80;
    constexpr float side = 36;
    constexpr float middle = cellHeight / 2.0f;
    nyx::embedded::BrushStroke stroke;
    stroke.texelsPerUnit = texelsPerUnit;
    for (int i = 0; i <= steps; ++i) {
        float const t = static_cast<float>(i) / steps;
        float const swing = std::sin(2 * std::numbers::pi_v<float> * t);
        stroke.points.push_back({side + t * (cellWidth - 2 * side), middle - 32 * swing,
                                 std::sin(std::numbers::pi_v<float> * (0.04f + 0.92f * t))});
    }
    return stroke;
}

shape::Raster cell(nyx::embedded::BrushSettings const& brush) {
    nyx::embedded::LayerPixels pixels(std::max(cellWidth, cellHeight));
    nyx::embedded::paintBrushStroke(pixels, brush, wave());
    shape::Raster raster{{}, cellWidth, cellHeight, cellWidth, cellHeight, {}};
    raster.rgba.reserve(std::size_t{4} * cellWidth * cellHeight);
    for (int y = 0; y < cellHeight; ++y) {
        for (int x = 0; x < cellWidth; ++x) {
            auto const [red, green, blue, alpha] = pixels.texel(x, y);
            int const paper = 255 - alpha;
            for (int const part : {red + paper, green + paper, blue + paper, 255}) {
                raster.rgba.push_back(static_cast<std::uint8_t>(part));
            }
        }
    }
    return raster;
}

} // namespace

Picture brushSheet(std::vector<NamedBrush> const& brushes) {
    auto const count = static_cast<int>(brushes.size());
    int const rows = (count + columns - 1) / columns;
    Picture picture{margin + std::min(count, columns) * (cellWidth + margin),
                    margin + rows * (cellHeight + label),
                    "Strokes of brushes",
                    {}};
    for (int i = 0; i < count; ++i) {
        NamedBrush const& brush = brushes[static_cast<std::size_t>(i)];
        int const column = i % columns;
        int const row = i / columns;
        shape::Point const corner{margin + column * (cellWidth + margin),
                                  margin + row * (cellHeight + label)};
        shape::Raster raster = cell(brush.settings);
        raster.corner = corner;
        picture.add(std::move(raster));
        picture.add(shape::Rectangle{corner, cellWidth, cellHeight, {}, {Ink::Frame, 1}, 0});
        picture.add(shape::fitted({{corner.x, corner.y + cellHeight + 18}, printable(brush.name)},
                                  cellWidth));
    }
    return picture;
}

} // namespace app
