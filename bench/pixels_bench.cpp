// What the embedded renderer does with painted pixels: compositing, snapshots, strokes.

#include "Rows.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Host.h"
#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/Painting.h"
#include "nyxembedded/Stroke.h"

#include <QImage>
#include <QPainter>
#include <pixman.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using nyx::ColorBlendMode;
using nyx::embedded::Image;
using nyx::embedded::LayerPixels;
using nyx::embedded::PixelTile;
using nyx::embedded::RenderTaskQueue;
using nyx::embedded::TileHandle;

constexpr int edge = 2048;
constexpr std::size_t layerCount = 10;

/// A mode as all three call it.
struct Mode {
    ColorBlendMode ours;
    QPainter::CompositionMode qt;
    pixman_op_t pixman;
};
// From the bottom up.
Mode const modes[layerCount] = {
    {ColorBlendMode::Normal, QPainter::CompositionMode_SourceOver, PIXMAN_OP_OVER},
    {ColorBlendMode::Multiply, QPainter::CompositionMode_Multiply, PIXMAN_OP_MULTIPLY},
    {ColorBlendMode::Screen, QPainter::CompositionMode_Screen, PIXMAN_OP_SCREEN},
    {ColorBlendMode::Overlay, QPainter::CompositionMode_Overlay, PIXMAN_OP_OVERLAY},
    {ColorBlendMode::Darken, QPainter::CompositionMode_Darken, PIXMAN_OP_DARKEN},
    {ColorBlendMode::Lighten, QPainter::CompositionMode_Lighten, PIXMAN_OP_LIGHTEN},
    {ColorBlendMode::HardLight, QPainter::CompositionMode_HardLight, PIXMAN_OP_HARD_LIGHT},
    {ColorBlendMode::SoftLight, QPainter::CompositionMode_SoftLight, PIXMAN_OP_SOFT_LIGHT},
    {ColorBlendMode::Difference, QPainter::CompositionMode_Difference, PIXMAN_OP_DIFFERENCE},
    {ColorBlendMode::Exclusion, QPainter::CompositionMode_Exclusion, PIXMAN_OP_EXCLUSION},
};

/// Noise of every alpha, on all tiles.
LayerPixels painted(int resolution, unsigned seed) {
    LayerPixels pixels(resolution);
    std::mt19937 random(seed);
    for (int row = 0; row < pixels.tilesAcross(); ++row) {
        for (int column = 0; column < pixels.tilesAcross(); ++column) {
            PixelTile& tile = pixels.writableTile(column, row);
            for (int i = 0; i < PixelTile::texels; ++i) {
                auto const bits = static_cast<std::uint32_t>(random());
                unsigned const alpha = bits & 0xff;
                tile.planes[PixelTile::alpha][i] = static_cast<std::uint8_t>(alpha);
                for (int plane = 0; plane < PixelTile::alpha; ++plane) {
                    unsigned const color = (bits >> (8 + 7 * plane)) & 0x7f;
                    tile.planes[plane][i] = static_cast<std::uint8_t>(color * alpha / 127);
                }
            }
        }
    }
    return pixels;
}

/// The same as an interleaved picture.
QImage interleaved(LayerPixels const& pixels) {
    QImage image(pixels.resolution(), pixels.resolution(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            auto const texel = pixels.texel(x, y);
            line[x] = qRgba(texel[0], texel[1], texel[2], texel[3]);
        }
    }
    return image;
}

/// The ten layers, in the renderer and as pictures.
struct Picture {
    explicit Picture(bool all) : allModes(all) {
        zsg::IPainter& painter = *host.root().painterManager()->painter();
        zsg::IPainterSurface& surface = *painter.surface(painter.createSurface(edge));
        for (unsigned i = 0; i < layerCount; ++i) {
            if (i > 0) {
                surface.addLayer(0);
            }
            surface.setLayerBlend(0, mode(i).ours);
            host.taskQueue().waitIdle();
            LayerPixels pixels = painted(edge, i + 1);
            images.push_back(interleaved(pixels));
            host.renderer().painting().setPixels(surface.id(), surface.layers().front().id,
                                                 std::move(pixels));
        }
        id = surface.id();
    }
    [[nodiscard]] Mode const& mode(std::size_t layer) const { return modes[allModes ? layer : 0]; }
    [[nodiscard]] Image ours() { return host.renderer().painting().composite(id); }
    [[nodiscard]] QImage qt() const {
        QImage result(edge, edge, QImage::Format_ARGB32_Premultiplied);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        for (std::size_t i = 0; i < layerCount; ++i) {
            painter.setCompositionMode(mode(i).qt);
            painter.drawImage(0, 0, images[i]);
        }
        return result;
    }
    [[nodiscard]] QImage pixman() const {
        QImage result(edge, edge, QImage::Format_ARGB32_Premultiplied);
        result.fill(Qt::transparent);
        using Handle = std::unique_ptr<pixman_image_t, decltype(&pixman_image_unref)>;
        auto const over = [](QImage const& image, uchar const* bits) {
            return Handle(
                pixman_image_create_bits(PIXMAN_a8r8g8b8, image.width(), image.height(),
                                         reinterpret_cast<std::uint32_t*>(const_cast<uchar*>(bits)),
                                         static_cast<int>(image.bytesPerLine())),
                pixman_image_unref);
        };
        Handle const target = over(result, result.bits());
        for (std::size_t i = 0; i < layerCount; ++i) {
            Handle const source = over(images[i], images[i].constBits());
            pixman_image_composite32(mode(i).pixman, source.get(), nullptr, target.get(), 0, 0, 0,
                                     0, 0, 0, edge, edge);
        }
        return result;
    }
    /// The largest difference of a channel between our picture and another.
    [[nodiscard]] int difference(QImage const& other) {
        Image const mine = ours();
        int largest = 0;
        for (int y = 0; y < edge; ++y) {
            auto const* const line = reinterpret_cast<QRgb const*>(other.constScanLine(y));
            std::uint8_t const* texel = &mine.rgba[static_cast<std::size_t>(y) * edge * 4];
            for (int x = 0; x < edge; ++x, texel += 4) {
                largest = std::max({largest, std::abs(texel[0] - qRed(line[x])),
                                    std::abs(texel[1] - qGreen(line[x])),
                                    std::abs(texel[2] - qBlue(line[x])),
                                    std::abs(texel[3] - qAlpha(line[x]))});
            }
        }
        return largest;
    }

    bool allModes;
    nyx::embedded::Host host{RenderTaskQueue::Mode::Manual};
    nyx::SurfaceId id;
    std::vector<QImage> images; ///< from the bottom up
};

/// By the clock on the wall, because QPainter fills with several threads.
void compositing(bool allModes) {
    std::string const workload =
        allModes ? "composite 2048 x 2048, 10 modes" : "composite 2048 x 2048, 10 normal layers";
    auto const row = [&](std::string const& name, auto action, char const* number = "P3") {
        return bench::contestant(
                   number, workload, name,
                   [=](benchmark::State& state) {
                       Picture picture(allModes);
                       for (auto _ : state) {
                           benchmark::DoNotOptimize(action(picture));
                       }
                       if constexpr (std::is_same_v<decltype(action(picture)), QImage>) {
                           state.counters["difference"] = picture.difference(action(picture));
                       }
                   })
            ->Unit(benchmark::kMillisecond)
            ->MeasureProcessCPUTime()
            ->UseRealTime();
    };
    row(bench::ours, [](Picture& picture) { return picture.ours(); });
    row("QPainter", [](Picture& picture) { return picture.qt(); });
    row("pixman", [](Picture& picture) { return picture.pixman(); });
    row("memcpy of the layers", [](Picture& picture) {
        QImage copy(edge, edge, QImage::Format_ARGB32_Premultiplied);
        for (QImage const& image : picture.images) {
            std::memcpy(copy.bits(), image.constBits(),
                        static_cast<std::size_t>(image.sizeInBytes()));
            benchmark::ClobberMemory();
        }
        return copy.size();
    });
    bench::target({"P3", workload, "QPainter", 1});
    if (!allModes) { // once more, among the figures that tell most
        row(
            bench::ours, [](Picture& picture) { return picture.ours(); }, "0");
    }
}

void snapshots() {
    auto const row = [](int resolution, std::string const& workload) {
        bench::contestant("P4", workload, bench::ours, [=](benchmark::State& state) {
            nyx::embedded::Renderer renderer;
            nyx::SurfaceId const id = renderer.painting().addSurface("Surface", resolution);
            renderer.painting().setPixels(id, 1, painted(resolution, 1));
            for (auto _ : state) {
                benchmark::DoNotOptimize(renderer.painting().pixels(id, 1));
            }
        });
        bench::contestant("P4", workload, "vector of shared_ptr", [=](benchmark::State& state) {
            // A process that never had another thread counts without atomics; no host is one.
            std::thread([] {}).join();
            auto const across = static_cast<std::size_t>(resolution / PixelTile::edge);
            std::vector<std::shared_ptr<PixelTile>> tiles(across * across);
            std::generate(tiles.begin(), tiles.end(), [] { return std::make_shared<PixelTile>(); });
            for (auto _ : state) {
                auto copy = tiles;
                benchmark::DoNotOptimize(copy.data());
            }
        });
        bench::contestant("P4", workload, "QImage, a deep copy", [=](benchmark::State& state) {
            QImage image(resolution, resolution, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::red);
            for (auto _ : state) {
                benchmark::DoNotOptimize(image.copy());
            }
        });
        bench::target({"P4", workload, "vector of shared_ptr", 1});
    };
    row(1024, "snapshot of 1024 x 1024");
    row(8192, "snapshot of 8192 x 8192");
}

void strokes() {
    std::string const workload = "stroke of 1,000 dabs, radius 16";
    static constexpr int radius = 16, dabs = 1000;
    static constexpr float spacing = 1.6f, left = 200, middle = 1000;
    bench::contestant("P5", workload, bench::ours, [](benchmark::State& state) {
        nyx::embedded::Renderer renderer;
        nyx::SurfaceId const id = renderer.painting().addSurface("Surface", edge);
        nyx::embedded::Stroke stroke;
        stroke.points = {{left, middle}, {left + spacing * (dabs - 1), middle}};
        stroke.radius = radius;
        stroke.spacing = spacing / radius;
        stroke.color = {1, 0, 0, 0.5f};
        for (auto _ : state) {
            benchmark::DoNotOptimize(renderer.painting().paint(id, 1, stroke));
        }
    });
    bench::contestant("P5", workload, "QPainter, a picture per dab", [](benchmark::State& state) {
        QImage dab(2 * radius + 2, 2 * radius + 2, QImage::Format_ARGB32_Premultiplied);
        dab.fill(QColor(255, 0, 0, 128));
        QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        for (auto _ : state) {
            QPainter painter(&image);
            for (int i = 0; i < dabs; ++i) {
                painter.drawImage(static_cast<int>(left + spacing * static_cast<float>(i)),
                                  static_cast<int>(middle), dab);
            }
        }
    });
    bench::contestant("P5", workload, "maximum of bytes", [](benchmark::State& state) {
        constexpr std::size_t wide = 2 * radius + 2;
        std::vector<std::uint8_t> const dab(wide * wide, 100);
        std::vector<std::uint8_t> mask(std::size_t{edge} * edge);
        for (auto _ : state) {
            for (int i = 0; i < dabs; ++i) {
                auto const x = static_cast<std::size_t>(left + spacing * static_cast<float>(i));
                for (std::size_t y = 0; y < wide; ++y) {
                    std::uint8_t* const to = &mask[(std::size_t{1000} + y) * edge + x];
                    std::transform(to, to + wide, &dab[y * wide], to,
                                   [](std::uint8_t a, std::uint8_t b) { return std::max(a, b); });
                }
            }
            benchmark::ClobberMemory();
        }
    });
}

[[maybe_unused]] bool const registered = [] {
    compositing(true);
    compositing(false);
    snapshots();
    strokes();
    return true;
}();

} // namespace
