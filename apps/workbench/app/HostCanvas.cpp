#include "workbench/app/HostCanvas.h"

#include "host/BrushPreset.h"
#include "host/CurrentBrush.h"
#include "host/Host.h"
#include "host/OutputFile.h"
#include "host/PaintState.h"
#include "painting/PaintCommand.h"
#include "workbench/app/RenderSide.h"
#include "workbench/scene/Scene.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <optional>
#include <utility>

namespace workbench {

using nyx::embedded::BrushSettings;
using nyx::embedded::brushSettings;
using nyx::embedded::GrowingStroke;
using nyx::embedded::LayerPixels;

namespace {

QImage imageOf(LayerPixels const& pixels, QSize const& size) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        std::uint8_t* to = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            to = std::ranges::copy(pixels.texel(x, y), to).out;
        }
    }
    return image;
}

/// Of the numbers of a place, the middle one and some around it.
std::array<std::uint8_t, 4> average(LayerPixels const& pixels, double x, double y, double step) {
    constexpr int samples = 3;
    int sums[4] = {};
    for (int i = 0; i < samples * samples; ++i) {
        int const column = i % samples;
        int const row = i / samples;
        auto const texel = pixels.texel(static_cast<int>(x + step * column / samples),
                                        static_cast<int>(y + step * row / samples));
        for (std::size_t k = 0; k < 4; ++k) {
            sums[k] += texel[k];
        }
    }
    std::array<std::uint8_t, 4> result{};
    for (std::size_t k = 0; k < 4; ++k) {
        result[k] = static_cast<std::uint8_t>(sums[k] / (samples * samples));
    }
    return result;
}

std::size_t bytesOf(ZUndoCommand const* command) {
    auto const* const stroke = dynamic_cast<example::PaintCommand const*>(command);
    return stroke ? stroke->bytes() : 0;
}

} // namespace

HostCanvas::HostCanvas(app::Host& host, Scene& scene, QObject* parent)
    : Canvas(parent),
      host_(host),
      scene_(scene),
      renderSide_(
          std::make_shared<RenderSide>(*this, host.renderer().painting(), host.taskQueue())) {
    connect(&scene, &Scene::changed, this, [this](Changes const& changes) {
        if (changes.everything) {
            toldOfTrimming_ = false;
            noteCommands();
        } else if (!changes.surfaces.empty()) {
            updatePicture();
        }
    });
    connect(&scene, &Scene::historyChanged, this, &HostCanvas::updatePicture);
    connect(&scene, &Scene::rootEnding, this, [this] { stroke_.reset(); });
}

HostCanvas::~HostCanvas() { renderSide_->letGo(); }

void HostCanvas::noteCommands() {
    emit surfaceChanged();
    emit brushChanged();
    updatePicture();
}

std::vector<Canvas::Surface> HostCanvas::surfaces() const {
    std::vector<Surface> surfaces;
    if (!scene_.root()) {
        return surfaces;
    }
    for (zsg::IPainterSurface* const surface : app::painter(host_).surfaces()) {
        if (!surface->deleted()) {
            auto const info = host_.renderer().painting().surface(surface->id());
            QString const name = info ? QString::fromStdString(info->name) : QString();
            surfaces.push_back({surface->id(), name.isEmpty()
                                                   ? tr("Surface %1").arg(surface->id().toUint())
                                                   : name});
        }
    }
    return surfaces;
}

zsg::IPainterSurface* HostCanvas::surface() const {
    if (!scene_.root()) {
        return nullptr;
    }
    zsg::IPainter& painter = app::painter(host_);
    zsg::IPainterSurface* const chosen =
        painter.surface(host_.sceneState<app::PaintState>().surface);
    if (chosen && !chosen->deleted()) {
        return chosen;
    }
    auto const all = painter.surfaces();
    auto const first = std::ranges::find_if(
        all, [](zsg::IPainterSurface const* surface) { return !surface->deleted(); });
    return first == all.end() ? nullptr : *first;
}

void HostCanvas::setSurface(nyx::SurfaceId id) {
    scene_.endDrags();
    if (scene_.root()) {
        host_.sceneState<app::PaintState>().surface = id;
        emit surfaceChanged();
        updatePicture();
    }
}

bool HostCanvas::createSurface(int resolution) {
    if (!scene_.root()) {
        return false;
    }
    scene_.endDrags();
    host_.taskQueue().waitIdle(); // the renderer makes it at once, and so must be where we are
    nyx::SurfaceId const id = app::painter(host_).createSurface(resolution);
    if (id.isValid()) {
        scene_.noteUnrecordedChange();
        setSurface(id);
    }
    return id.isValid();
}

void HostCanvas::waitForRenderer() { host_.taskQueue().waitIdle(); }

void HostCanvas::updatePicture() {
    zsg::IPainterSurface* const shown = surface();
    renderSide_->setSurface(shown ? shown->id() : nyx::SurfaceId());
    renderSide_->update(false);
}

void HostCanvas::restartPicture() {
    updatePicture();
    renderSide_->update(true);
}

void HostCanvas::takePicture(Picture const& picture) {
    emit pictureChanged(picture);
    if (stroke_) {
        stroke_->stepWaits = false;
        if (stroke_->hasSamples()) {
            stepStroke();
        }
    } else {
        trimHistory();
    }
}

QImage HostCanvas::thumbnail(std::uint32_t layerId, int side) const {
    zsg::IPainterSurface* const shown = surface();
    auto const pixels =
        shown ? host_.renderer().painting().pixels(shown->id(), layerId) : std::nullopt;
    if (!pixels || side < 1) {
        return {};
    }
    double const step = pixels->resolution() / double(side);
    QImage image(side, side, QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < side; ++y) {
        std::uint8_t* to = image.scanLine(y);
        for (int x = 0; x < side; ++x) {
            to = std::ranges::copy(average(*pixels, x * step, y * step, step), to).out;
        }
    }
    return image;
}

std::shared_ptr<zsg::IPainterBrush> HostCanvas::brush() {
    if (!scene_.root()) {
        return nullptr;
    }
    auto& brush = host_.sceneState<app::CurrentBrush>().brush;
    if (!brush) {
        zsg::IPainterSurface* const shown = surface();
        auto const info = shown ? host_.renderer().painting().surface(shown->id()) : std::nullopt;
        // A new brush is a part of the size that it is given.
        brush = info ? app::freshBrush(host_, static_cast<float>(info->resolution))
                     : app::freshBrush(host_);
    }
    return brush;
}

void HostCanvas::resetBrush() {
    if (scene_.root()) {
        host_.sceneState<app::CurrentBrush>().brush = nullptr;
        emit brushChanged();
    }
}

QString HostCanvas::loadBrush(QString const& path) {
    if (!scene_.root()) {
        return {};
    }
    try {
        host_.sceneState<app::CurrentBrush>().brush = app::presetBrush(host_, path.toStdString());
    } catch (std::exception const& error) {
        return QString::fromStdString(error.what());
    }
    emit brushChanged();
    return {};
}

QString HostCanvas::saveBrush(QString const& path) {
    auto const current = brush();
    if (!current) {
        return {};
    }
    try {
        std::string const folder = QFileInfo(path).absolutePath().toStdString();
        app::writeOutputFile(path.toStdString(), app::brushPreset(*current, folder));
    } catch (std::exception const& error) {
        return QString::fromStdString(error.what());
    }
    return {};
}

QImage HostCanvas::brushPreview(QSize const& size) {
    auto const current = brush();
    auto settings =
        current ? brushSettings(*host_.renderer().scene(), current->brushNode()) : std::nullopt;
    if (!settings || size.isEmpty()) {
        return {};
    }
    // As large as there is room for: it shows what the brush does, not how large it is.
    BrushSettings::Jittered& wide = settings->pixels ? settings->sizePixels : settings->sizeWorld;
    float const scale = std::min(1.0f, static_cast<float>(size.height()) * 0.45f / wide.value);
    wide.value *= scale;
    settings->spacingPixels *= scale;
    settings->spacingWorld *= scale;
    std::vector<nyx::embedded::BrushStroke::Point> points;
    constexpr int pieces = 48;
    for (int i = 0; i <= pieces; ++i) {
        float const t = static_cast<float>(i) / pieces;
        float const wave = std::sin(t * 6.2832f);
        points.push_back({static_cast<float>(size.width()) * (0.1f + 0.8f * t),
                          static_cast<float>(size.height()) * (0.5f - 0.22f * wave),
                          std::sin(t * 3.1416f)});
    }
    GrowingStroke stroke(LayerPixels(std::max(size.width(), size.height())), *settings);
    stroke.add(points);
    stroke.end();
    return imageOf(stroke.pixels(), size);
}

QString HostCanvas::beginStroke(Ink ink) {
    zsg::IPainterSurface* const shown = surface();
    if (!shown) {
        return tr("There is no surface to paint on.");
    }
    auto const layers = shown->layers();
    if (shown->editLayer() >= layers.size() || layers[shown->editLayer()].deleted) {
        return tr("Choose a layer to paint on.");
    }
    nyxLayerInfo const& layer = layers[shown->editLayer()];
    if (!layer.visible) {
        return tr("The layer to paint on is hidden.");
    }
    auto const current = brush();
    auto const settings =
        current ? brushSettings(*host_.renderer().scene(), current->brushNode()) : std::nullopt;
    if (!settings) {
        return tr("The renderer has no brush to paint with.");
    }
    cancelStroke();
    stroke_ = std::make_shared<Stroke>(*renderSide_, shown->id(), layer.id, *settings,
                                       ink == Ink::Erase ? GrowingStroke::Ink::Erase
                                                         : GrowingStroke::Ink::Paint);
    return {};
}

void HostCanvas::addSamples(std::vector<Sample> const& samples) {
    if (stroke_) {
        stroke_->add(samples);
        stepStroke();
    }
}

/// Portions are as large as the render thread's pace makes them: while one is on its way, samples
/// gather for the next.
void HostCanvas::stepStroke() {
    if (!std::exchange(stroke_->stepWaits, true)) {
        renderSide_->run([side = renderSide_, stroke = stroke_] {
            stroke->step();
            side->sendPicture();
        });
    }
}

void HostCanvas::endStroke() {
    auto const stroke = std::exchange(stroke_, nullptr);
    if (!stroke) {
        return;
    }
    renderSide_->run([side = renderSide_, stroke] { stroke->finish(); });
    bool const done = host_.undoStack().push(
        std::make_unique<example::PaintCommand>(
            stroke->erases ? tr("Erase") : tr("Paint"), host_.renderer().painting(),
            host_.taskQueue(), *host_.renderer().api(), stroke->surface, stroke->layer,
            [stroke](LayerPixels& pixels) { pixels = stroke->pixels(); },
            [stroke] { return stroke->before(); })
            .release());
    if (!done) {
        renderSide_->run([side = renderSide_, stroke] { stroke->takeOff(); });
        scene_.say(tr("The stroke could not be kept."));
    }
    updatePicture();
}

void HostCanvas::cancelStroke() {
    if (auto const stroke = std::exchange(stroke_, nullptr)) {
        renderSide_->run([side = renderSide_, stroke] { stroke->takeOff(); });
        updatePicture();
    }
}

std::size_t HostCanvas::historyBytes() const {
    std::size_t bytes = 0;
    for (int i = 0; i < host_.undoStack().count(); ++i) {
        bytes += bytesOf(host_.undoStack().command(i));
    }
    return bytes;
}

/// Drops the oldest entries, and with them the tiles that they keep. The newest stays whatever it
/// takes: what was done last can always be undone.
void HostCanvas::trimHistory() {
    ZUndoStack& stack = host_.undoStack();
    if (stack.isExecuting() || stack.macroDepth() > 0) {
        return;
    }
    std::size_t bytes = 0;
    int keep = 0;
    while (keep < stack.count()) {
        bytes += bytesOf(stack.command(stack.count() - 1 - keep));
        if (bytes > budget_) {
            break;
        }
        ++keep;
    }
    if (keep < stack.count() && stack.count() > 1) {
        int const limit = stack.limit();
        stack.setLimit(std::max(1, keep));
        stack.setLimit(limit);
        if (!std::exchange(toldOfTrimming_, true)) {
            scene_.say(tr("The oldest steps can no longer be undone: what strokes keep for it "
                          "has a limit of %1 MB.")
                           .arg(budget_ >> 20));
        }
    }
}

} // namespace workbench
