#include "paint/composite.h"

#include "paint/blendTile.h"
#include "paint/paintStroke.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace nyx::embedded {

namespace {

constexpr int edge = PixelTile::edge;

/// A tile of one colour; nothing when the colour is transparent.
std::unique_ptr<PixelTile> filled(nyxColor_rgba const& color) {
    int const alpha = toByte(color.a);
    if (alpha == 0) {
        return nullptr;
    }
    auto tile = std::make_unique<PixelTile>();
    int const straight[] = {toByte(color.r), toByte(color.g), toByte(color.b), 255};
    for (int plane = 0; plane < 4; ++plane) {
        int const value = (straight[plane] * alpha * 2 + 255) / 510; // to the nearest
        std::memset(tile->planes[plane], value, PixelTile::texels);
    }
    return tile;
}

void copyOut(PixelTile const& tile, Image& image, int left, int top) {
    int const columns = std::min(edge, image.width - left);
    int const rows = std::min(edge, image.height - top);
    for (int y = 0; y < rows; ++y) {
        int const row = y * edge;
        std::uint8_t const* const red = tile.planes[0] + row;
        std::uint8_t const* const green = tile.planes[1] + row;
        std::uint8_t const* const blue = tile.planes[2] + row;
        std::uint8_t const* const alpha = tile.planes[3] + row;
        std::uint8_t* to = image.rgba.data() + (static_cast<std::size_t>(top + y) *
                                                    static_cast<std::size_t>(image.width) +
                                                static_cast<std::size_t>(left)) *
                                                   4;
        for (int x = 0; x < columns; ++x, to += 4) {
            to[0] = red[x];
            to[1] = green[x];
            to[2] = blue[x];
            to[3] = alpha[x];
        }
    }
}

} // namespace

Image composite(std::vector<CompositeLayer> const& layers, int resolution) {
    Image image{resolution, resolution, {}};
    auto const size = static_cast<std::size_t>(resolution);
    image.rgba.resize(size * size * 4);
    std::vector<std::unique_ptr<PixelTile>> backgrounds;
    backgrounds.reserve(layers.size());
    for (CompositeLayer const& layer : layers) {
        backgrounds.push_back(filled(layer.background));
    }
    // Tile by tile, so that what is composited so far stays in the cache.
    int const across = (resolution + edge - 1) / edge;
    for (int row = 0; row < across; ++row) {
        for (int column = 0; column < across; ++column) {
            PixelTile sum;
            bool isEmpty = true;
            for (std::size_t i = 0; i < layers.size(); ++i) {
                PixelTile const* const pixels = layers[i].pixels.tile(column, row).get();
                std::unique_ptr<PixelTile> const& background = backgrounds[i];
                if (pixels == nullptr && !background) {
                    continue;
                }
                PixelTile over;
                PixelTile const* source = pixels;
                if (background) {
                    source = &*background;
                    if (pixels != nullptr) {
                        over = *background;
                        blendTile(over, *pixels, nyx::ColorBlendMode::Normal);
                        source = &over;
                    }
                }
                if (isEmpty) {
                    sum = *source; // over nothing, every mode leaves the source as it is
                    isEmpty = false;
                } else {
                    blendTile(sum, *source, layers[i].mode);
                }
            }
            if (!isEmpty) {
                copyOut(sum, image, column * edge, row * edge);
            }
        }
    }
    return image;
}

} // namespace nyx::embedded
