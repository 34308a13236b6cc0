#include "host/BrushSheet.h"

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
constexpr float texelsPerUnit = 40; ///< for brushes that are measured in scene units

nyx::embedded::BrushStroke wave(float left, float middle) {
    constexpr int steps = 80;
    constexpr float margin = 36;
    nyx::embedded::BrushStroke stroke;
    stroke.texelsPerUnit = texelsPerUnit;
    for (int i = 0; i <= steps; ++i) {
        float const t = static_cast<float>(i) / steps;
        float const swing = std::sin(2 * std::numbers::pi_v<float> * t);
        stroke.points.push_back({left + margin + t * (cellWidth - 2 * margin), middle - 32 * swing,
                                 std::sin(std::numbers::pi_v<float> * (0.04f + 0.92f * t))});
    }
    return stroke;
}

} // namespace

nyx::embedded::Image brushSheet(std::vector<nyx::embedded::BrushSettings> const& brushes) {
    int const rows = (static_cast<int>(brushes.size()) + columns - 1) / columns;
    int const width = columns * cellWidth;
    int const height = rows * cellHeight;
    nyx::embedded::LayerPixels pixels(std::max(width, height));
    for (std::size_t i = 0; i < brushes.size(); ++i) {
        auto const column = static_cast<int>(i) % columns;
        auto const row = static_cast<int>(i) / columns;
        auto const left = static_cast<float>(column * cellWidth);
        auto const top = static_cast<float>(row * cellHeight);
        nyx::embedded::paintBrushStroke(pixels, brushes[i], wave(left, top + cellHeight / 2.0f));
    }
    nyx::embedded::Image sheet{width, height, {}};
    sheet.rgba.reserve(std::size_t{4} * static_cast<std::size_t>(width) *
                       static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            auto const [red, green, blue, alpha] = pixels.texel(x, y);
            int const paper = 255 - alpha;
            for (int const part : {red + paper, green + paper, blue + paper, 255}) {
                sheet.rgba.push_back(static_cast<std::uint8_t>(part));
            }
        }
    }
    return sheet;
}

} // namespace app
