#include "paint/composite.h"

#include "paint/blendTile.h"
#include "paint/toByte.h"

#include "nyxembedded/sRGB.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>
#include <system_error>
#include <thread>

namespace nyx::embedded {

namespace {

constexpr int edge = PixelTile::edge;
/// A thread takes longer to begin than fewer rows of tiles take.
constexpr int fewestRows = 8;

/// Whether every texel's alpha is that value. Most tiles say no in their first row.
bool isAlphaEverywhere(PixelTile const& tile, std::uint8_t value) {
    std::uint8_t const* const alpha = tile.planes[PixelTile::alpha];
    for (int row = 0; row < PixelTile::texels; row += edge) {
        std::uint8_t differences = 0;
        for (int i = row; i < row + edge; ++i) {
            differences = static_cast<std::uint8_t>(differences | (alpha[i] ^ value));
        }
        if (differences != 0) {
            return false;
        }
    }
    return true;
}

/// A tile of one colour; nothing when the colour is transparent.
std::unique_ptr<PixelTile> filled(nyxColor_rgba const& color) {
    int const alpha = toByte(color.a);
    if (alpha == 0) {
        return nullptr;
    }
    auto tile = std::make_unique<PixelTile>();
    int const straight[] = {sRGBFromLinear(color.r), sRGBFromLinear(color.g),
                            sRGBFromLinear(color.b), 255};
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

/// Composites tiles of one place; what is composited so far stays in the cache.
class TileStack {
public:
    explicit TileStack(std::vector<CompositeLayer> const& layers) : layers_(layers) {
        backgrounds_.reserve(layers.size());
        for (CompositeLayer const& layer : layers) {
            backgrounds_.push_back(filled(layer.background));
        }
    }

    /// Null where everything is transparent; valid until the next call.
    PixelTile const* composite(int column, int row) {
        PixelTile const* shown = nullptr;
        for (std::size_t i = lowestSeen(column, row); i < layers_.size(); ++i) {
            PixelTile const* const source = withBackground(i, column, row);
            if (!source || isAlphaEverywhere(*source, 0)) {
                continue;
            }
            if (!shown) { // over nothing, every mode leaves the source as it is
                shown = source;
                if (source == &over_) {
                    sum_ = over_;
                    shown = &sum_;
                }
                continue;
            }
            if (shown != &sum_) {
                sum_ = *shown;
                shown = &sum_;
            }
            blendTile(sum_, *source, layers_[i].mode);
        }
        return shown;
    }

private:
    /// The topmost layer that hides everything beneath it, or the lowest.
    [[nodiscard]] std::size_t lowestSeen(int column, int row) const {
        auto const isOpaque = [](PixelTile const* tile) {
            return tile && isAlphaEverywhere(*tile, 255);
        };
        for (std::size_t i = layers_.size(); i-- > 1;) {
            if (layers_[i].mode == nyx::ColorBlendMode::Normal &&
                (isOpaque(backgrounds_[i].get()) ||
                 isOpaque(layers_[i].pixels.tile(column, row).get()))) {
                return i;
            }
        }
        return 0;
    }
    PixelTile const* withBackground(std::size_t layer, int column, int row) {
        PixelTile const* const pixels = layers_[layer].pixels.tile(column, row).get();
        PixelTile const* const background = backgrounds_[layer].get();
        if (!pixels || !background) {
            return pixels ? pixels : background;
        }
        over_ = *background;
        blendTile(over_, *pixels, nyx::ColorBlendMode::Normal);
        return &over_;
    }

    std::vector<CompositeLayer> const& layers_;
    std::vector<std::unique_ptr<PixelTile>> backgrounds_;
    PixelTile sum_;
    PixelTile over_; ///< a layer's pixels over its background
};

} // namespace

Image composite(std::vector<CompositeLayer> const& layers, int resolution, TileArea const& area) {
    auto const texels = [resolution](int begin, int end) {
        return std::max(0, std::min(end * edge, resolution) - begin * edge);
    };
    Image image{texels(area.left, area.right), texels(area.top, area.bottom), {}};
    image.rgba.resize(static_cast<std::size_t>(image.width) *
                      static_cast<std::size_t>(image.height) * 4);
    std::atomic<int> next = area.top;
    auto const work = [&](TileStack& stack) noexcept {
        for (int row = next++; row < area.bottom; row = next++) {
            for (int column = area.left; column < area.right; ++column) {
                if (PixelTile const* const tile = stack.composite(column, row)) {
                    copyOut(*tile, image, (column - area.left) * edge, (row - area.top) * edge);
                }
            }
        }
    };
    // What a worker needs is made before the first begins: no worker can fail.
    auto const shares = std::min(std::thread::hardware_concurrency(),
                                 static_cast<unsigned>((area.bottom - area.top) / fewestRows));
    std::vector<std::unique_ptr<TileStack>> stacks;
    for (unsigned i = 0; i == 0 || i < shares; ++i) {
        stacks.push_back(std::make_unique<TileStack>(layers));
    }
    std::vector<std::jthread> helpers;
    helpers.reserve(stacks.size());
    try {
        for (std::size_t i = 1; i < stacks.size(); ++i) {
            helpers.emplace_back([&work, &stack = *stacks[i]] { work(stack); });
        }
    } catch (std::system_error const&) {
        // The system has no more threads: those that there are do all of it.
    }
    work(*stacks[0]);
    helpers.clear();
    return image;
}

} // namespace nyx::embedded
